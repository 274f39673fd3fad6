#include "platform/sim/sim_event_tap_port.h"

namespace vistrel {

namespace {
constexpr unsigned maskBits = 64;

bool isDisableNotice(EventType type) {
    return type == EventType::tapDisabledByTimeout || type == EventType::tapDisabledByUserInput;
}

bool isMouseEvent(EventType type) {
    return type == EventType::leftMouseDown || type == EventType::leftMouseUp ||
           type == EventType::mouseMoved || type == EventType::leftMouseDragged;
}
}  // namespace

bool SimEventTapPort::create(EventTapLocation location, std::uint64_t mask, Handler handler) {
    if (creationFails || (refusesHIDLocation && location == EventTapLocation::hid)) return false;
    handler_ = std::move(handler);
    mask_ = mask;
    location_ = location;
    exists_ = true;
    valid_ = true;
    enabled_ = false;
    ++creations_;
    return true;
}

bool SimEventTapPort::addToMainRunLoop() {
    if (sourceFails || !exists_) return false;
    inRunLoop_ = true;
    return true;
}

void SimEventTapPort::enable(bool on) {
    if (!exists_) return;
    enabled_ = on;
    if (on) ++enables_;
}

void SimEventTapPort::invalidate() {
    exists_ = false;
    valid_ = false;
    inRunLoop_ = false;
    enabled_ = false;
    handler_ = nullptr;
}

bool SimEventTapPort::deliver(const InputEvent& event) {
    if (isMouseEvent(event.type)) pointer_ = event.location;
    const bool passed = route(event);
    deliveries_.push_back({event, passed});
    if (passed && onPassed) onPassed(event);
    return passed;
}

bool SimEventTapPort::route(const InputEvent& event) {
    if (!exists_ || !valid_ || !inRunLoop_ || !handler_) return true;
    if (isDisableNotice(event.type)) return handler_(event);
    const auto type = static_cast<std::uint32_t>(event.type);
    const bool tapped = enabled_ && type < maskBits && (mask_ & (std::uint64_t{1} << type)) != 0;
    return tapped ? handler_(event) : true;
}

namespace SimInput {

namespace {
InputEvent pointer(EventType type, Point location, std::uint64_t flags = 0) {
    InputEvent event;
    event.type = type;
    event.location = location;
    event.flags = flags;
    return event;
}

InputEvent key(EventType type, std::int64_t keyCode, std::uint64_t flags, bool autorepeat) {
    InputEvent event;
    event.type = type;
    event.keyCode = keyCode;
    event.flags = flags;
    event.autorepeat = autorepeat;
    return event;
}
}  // namespace

InputEvent mouseMoved(Point location) {
    return pointer(EventType::mouseMoved, location);
}
InputEvent mouseDragged(Point location) {
    return pointer(EventType::leftMouseDragged, location);
}
InputEvent mouseDown(Point location, std::uint64_t flags) {
    return pointer(EventType::leftMouseDown, location, flags);
}
InputEvent mouseUp(Point location) {
    return pointer(EventType::leftMouseUp, location);
}
InputEvent keyDown(std::int64_t keyCode, std::uint64_t flags, bool autorepeat) {
    return key(EventType::keyDown, keyCode, flags, autorepeat);
}
InputEvent keyUp(std::int64_t keyCode, std::uint64_t flags) {
    return key(EventType::keyUp, keyCode, flags, false);
}
InputEvent flagsChanged(std::uint64_t flags) {
    return key(EventType::flagsChanged, 0, flags, false);
}
InputEvent tapDisabled(EventType notice) {
    return pointer(notice, {});
}

}  // namespace SimInput

}  // namespace vistrel
