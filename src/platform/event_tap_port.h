#pragma once

#include <cstdint>
#include <functional>

#include "platform/geometry.h"

namespace vistrel {

// Quartz event types the agent taps (CGEventType), with the two notices the system sends
// when it disables a tap.
enum class EventType : std::uint32_t {
    leftMouseDown = 1,
    leftMouseUp = 2,
    mouseMoved = 5,
    leftMouseDragged = 6,
    keyDown = 10,
    keyUp = 11,
    flagsChanged = 12,
    tapDisabledByTimeout = 0xFFFFFFFE,
    tapDisabledByUserInput = 0xFFFFFFFF,
};

// What the tap callback reads of one CGEvent.
struct InputEvent {
    EventType type = EventType::mouseMoved;
    Point location;            // CGEventGetLocation: accessibility coordinates
    std::uint64_t flags = 0;   // CGEventGetFlags
    std::int64_t keyCode = 0;  // kCGKeyboardEventKeycode (field 9)
    bool autorepeat = false;   // kCGKeyboardEventAutorepeat (field 8) is non-zero
};

// Where a tap sits in the event stream (CGEventTapLocation): where events enter the window
// server, or where they enter the login session. The system may refuse the HID location to
// a process that is not root.
enum class EventTapLocation : std::uint32_t { hid = 0, session = 1 };

// The system's side of one event tap (CGEventTapCreate and companions). The port delivers
// events on the main thread to the handler, which answers whether the event passes on
// (true) or is swallowed (false).
class EventTapPort {
  public:
    virtual ~EventTapPort() = default;
    using Handler = std::function<bool(const InputEvent&)>;

    // CGEventTapCreate(location, kCGHeadInsertEventTap, kCGEventTapOptionDefault, mask); false
    // when the system refuses a tap at that location.
    virtual bool create(EventTapLocation location, std::uint64_t mask, Handler handler) = 0;
    // CFMachPortCreateRunLoopSource + CFRunLoopAddSource(main run loop, common modes).
    virtual bool addToMainRunLoop() = 0;
    // CGEventTapEnable.
    virtual void enable(bool on) = 0;
    // CFMachPortIsValid.
    virtual bool isValid() = 0;
    // CFRunLoopRemoveSource + CFMachPortInvalidate; the port is gone afterwards.
    virtual void invalidate() = 0;
};

}  // namespace vistrel
