#include "platform/mac/mac_event_tap_port.h"

namespace vistrel {

namespace {
// The run-loop source's order among the main run loop's sources.
constexpr CFIndex sourceOrder = 0;

bool isDisableNotice(CGEventType type) {
    return type == kCGEventTapDisabledByTimeout || type == kCGEventTapDisabledByUserInput;
}

CGEventTapLocation cgLocation(EventTapLocation location) {
    switch (location) {
        case EventTapLocation::hid:
            return kCGHIDEventTap;
        case EventTapLocation::session:
            return kCGSessionEventTap;
    }
    return kCGHIDEventTap;
}
}  // namespace

bool MacEventTapPort::create(EventTapLocation location, std::uint64_t mask, Handler handler) {
    invalidate();
    port_ = CGEventTapCreate(cgLocation(location), kCGHeadInsertEventTap, kCGEventTapOptionDefault,
                             static_cast<CGEventMask>(mask), &MacEventTapPort::callback, this);
    if (port_ == nullptr) return false;
    handler_ = std::move(handler);
    return true;
}

bool MacEventTapPort::addToMainRunLoop() {
    if (port_ == nullptr) return false;
    source_ = CFMachPortCreateRunLoopSource(kCFAllocatorDefault, port_, sourceOrder);
    if (source_ == nullptr) return false;
    CFRunLoopAddSource(CFRunLoopGetMain(), source_, kCFRunLoopCommonModes);
    return true;
}

void MacEventTapPort::enable(bool on) {
    if (port_ != nullptr) CGEventTapEnable(port_, on);
}

bool MacEventTapPort::isValid() {
    return port_ != nullptr && CFMachPortIsValid(port_);
}

void MacEventTapPort::invalidate() {
    if (source_ != nullptr) {
        CFRunLoopRemoveSource(CFRunLoopGetMain(), source_, kCFRunLoopCommonModes);
        CFRelease(source_);
        source_ = nullptr;
    }
    if (port_ != nullptr) {
        CFMachPortInvalidate(port_);
        CFRelease(port_);
        port_ = nullptr;
    }
    handler_ = nullptr;
}

InputEvent MacEventTapPort::read(CGEventType type, CGEventRef event) const {
    InputEvent input;
    input.type = static_cast<EventType>(type);
    if (isDisableNotice(type) || event == nullptr) return input;
    const CGPoint location = CGEventGetLocation(event);
    input.location = {location.x, location.y};
    input.flags = CGEventGetFlags(event);
    if (type == kCGEventKeyDown || type == kCGEventKeyUp) {
        input.keyCode = CGEventGetIntegerValueField(event, kCGKeyboardEventKeycode);
        input.autorepeat = CGEventGetIntegerValueField(event, kCGKeyboardEventAutorepeat) != 0;
    }
    return input;
}

CGEventRef MacEventTapPort::callback(CGEventTapProxy, CGEventType type, CGEventRef event,
                                     void* refcon) {
    auto* port = static_cast<MacEventTapPort*>(refcon);
    if (port == nullptr || !port->handler_) return event;
    return port->handler_(port->read(type, event)) ? event : nullptr;
}

}  // namespace vistrel
