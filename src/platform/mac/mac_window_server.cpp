#include "platform/mac/mac_window_server.h"

#include <ApplicationServices/ApplicationServices.h>

#include "platform/mac/cf_owned.h"

namespace vistrel {

namespace {

// A value of the description, only when it has the expected Core Foundation type.
template <typename Ref>
Ref valueOf(CFDictionaryRef description, CFStringRef key, CFTypeID type) {
    CFTypeRef value = CFDictionaryGetValue(description, key);
    if (value == nullptr || CFGetTypeID(value) != type) return nullptr;
    return static_cast<Ref>(value);
}

std::optional<std::string> textFor(CFDictionaryRef description, CFStringRef key) {
    auto string = valueOf<CFStringRef>(description, key, CFStringGetTypeID());
    if (string == nullptr) return std::nullopt;
    return textOf(string);
}

// kCGWindowNumber, kCGWindowOwnerPID and kCGWindowLayer are 32-bit signed numbers.
std::optional<std::int32_t> int32Of(CFDictionaryRef description, CFStringRef key) {
    auto number = valueOf<CFNumberRef>(description, key, CFNumberGetTypeID());
    std::int32_t value = 0;
    if (number == nullptr || !CFNumberGetValue(number, kCFNumberSInt32Type, &value)) {
        return std::nullopt;
    }
    return value;
}

// kCGWindowBounds is a rectangle dictionary in global display coordinates (top-left origin).
std::optional<Rect> boundsOf(CFDictionaryRef description) {
    auto bounds = valueOf<CFDictionaryRef>(description, kCGWindowBounds, CFDictionaryGetTypeID());
    CGRect rect;
    if (bounds == nullptr || !CGRectMakeWithDictionaryRepresentation(bounds, &rect)) {
        return std::nullopt;
    }
    return Rect{rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

WindowDescription describe(CFDictionaryRef d) {
    WindowDescription window;
    if (auto number = int32Of(d, kCGWindowNumber))
        window.number = static_cast<std::uint32_t>(*number);
    window.ownerPid = int32Of(d, kCGWindowOwnerPID);
    window.ownerName = textFor(d, kCGWindowOwnerName);
    window.name = textFor(d, kCGWindowName);
    if (auto layer = int32Of(d, kCGWindowLayer)) window.layer = *layer;
    window.bounds = boundsOf(d);
    return window;
}

}  // namespace

std::optional<std::vector<WindowDescription>> MacWindowServer::windowList(std::uint32_t options) {
    const CFOwned<CFArrayRef> list(CGWindowListCopyWindowInfo(options, kCGNullWindowID));
    if (!list) return std::nullopt;
    std::vector<WindowDescription> windows;
    const CFIndex count = CFArrayGetCount(list.get());
    for (CFIndex i = 0; i < count; ++i) {
        CFTypeRef item = CFArrayGetValueAtIndex(list.get(), i);
        if (item == nullptr || CFGetTypeID(item) != CFDictionaryGetTypeID()) continue;
        windows.push_back(describe(static_cast<CFDictionaryRef>(item)));
    }
    return windows;
}

std::optional<std::string> MacWindowServer::displayUUID(std::uint32_t displayID) {
    const CFOwned<CFUUIDRef> uuid(CGDisplayCreateUUIDFromDisplayID(displayID));
    if (!uuid) return std::nullopt;
    const CFOwned<CFStringRef> text(CFUUIDCreateString(kCFAllocatorDefault, uuid.get()));
    if (!text) return std::nullopt;
    return textOf(text.get());
}

// The event comes from the HID system's state table, as a key pressed on a keyboard would:
// Mission Control then takes it for a key typed by the user, on every version.
bool MacWindowServer::postKey(std::uint16_t keyCode, bool down) {
    const CFOwned<CGEventSourceRef> source(CGEventSourceCreate(kCGEventSourceStateHIDSystemState));
    const CFOwned<CGEventRef> event(CGEventCreateKeyboardEvent(source.get(), keyCode, down));
    if (!event) return false;
    CGEventPost(kCGHIDEventTap, event.get());
    return true;
}

// A new event carries the pointer's current location, already in the global top-left
// coordinates accessibility uses.
Point MacWindowServer::pointerLocation() {
    const CFOwned<CGEventRef> event(CGEventCreate(nullptr));
    if (!event) return {};
    const CGPoint location = CGEventGetLocation(event.get());
    return {location.x, location.y};
}

}  // namespace vistrel
