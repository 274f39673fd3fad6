#include "tracking/event_tap.h"

#include "platform/platform.h"

namespace vistrel {

EventTap::~EventTap() {
    stop();
}

bool EventTap::start() {
    if (isRunning()) return true;
    // A port the system invalidated is gone for good: drop it and make a new tap.
    if (port_ != nullptr) stop();
    EventTapPort& port = platform().eventTap;
    // The port lives no longer than this tap (stop() runs before it goes), so the handler
    // may refer to the tap unretained, as the system's callback does with its refcon.
    if (!port.create(eventMask, [this](const InputEvent& event) { return handle(event); })) {
        return false;
    }
    if (!port.addToMainRunLoop()) {
        port.invalidate();
        return false;
    }
    port.enable(true);
    port_ = &port;
    return true;
}

void EventTap::stop() {
    if (port_ != nullptr) port_->invalidate();
    port_ = nullptr;
    swallowedKeys_.clear();
    swallowMouseUp_ = false;
}

bool EventTap::isRunning() const {
    return port_ != nullptr && port_->isValid();
}

bool EventTap::handle(const InputEvent& event) {
    if (event.type == EventType::tapDisabledByTimeout ||
        event.type == EventType::tapDisabledByUserInput) {
        if (port_ != nullptr) port_->enable(true);
        return true;
    }
    // Key-ups settle the swallowed set even when nobody listens any more.
    if (event.type == EventType::keyUp) return swallowedKeys_.erase(event.keyCode) == 0;
    const auto target = delegate.lock();
    if (!target) return true;
    switch (event.type) {
        case EventType::leftMouseDown:
            return handleMouseDown(target.get(), event);
        case EventType::leftMouseUp:
            return handleMouseUp(target.get(), event);
        case EventType::mouseMoved:
            target->tapMouseMoved(event.location);
            break;
        case EventType::leftMouseDragged:
            target->tapMouseDragged(event.location);
            break;
        case EventType::keyDown:
            return handleKeyDown(target.get(), event);
        case EventType::flagsChanged:
            target->tapFlagsChanged(event.flags);
            break;
        default:
            break;
    }
    return true;
}

bool EventTap::handleMouseDown(EventTapDelegate* target, const InputEvent& event) {
    const bool consumed = target->tapMouseDown(event.location, event.flags);
    if (consumed) swallowMouseUp_ = true;
    return !consumed;
}

bool EventTap::handleMouseUp(EventTapDelegate* target, const InputEvent& event) {
    if (swallowMouseUp_) {
        swallowMouseUp_ = false;
        return false;
    }
    target->tapMouseUp(event.location);
    return true;
}

bool EventTap::handleKeyDown(EventTapDelegate* target, const InputEvent& event) {
    const bool consumed = target->tapKeyDown(event.keyCode, event.flags, event.autorepeat);
    if (consumed) swallowedKeys_.insert(event.keyCode);
    return !consumed;
}

}  // namespace vistrel
