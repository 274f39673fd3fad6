#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/geometry.h"
#include "platform/process.h"

namespace vistrel {

// One entry of CGWindowListCopyWindowInfo. Every key may be missing from a description,
// so every field is optional.
struct WindowDescription {
    std::optional<std::uint32_t> number;   // kCGWindowNumber
    std::optional<Pid> ownerPid;           // kCGWindowOwnerPID
    std::optional<std::string> ownerName;  // kCGWindowOwnerName
    std::optional<std::string> name;       // kCGWindowName
    std::optional<std::int64_t> layer;     // kCGWindowLayer
    std::optional<Rect> bounds;            // kCGWindowBounds, accessibility coordinates
};

// Options of the on-screen window list query.
namespace WindowListOption {
inline constexpr std::uint32_t onScreenOnly = 1;             // kCGWindowListOptionOnScreenOnly
inline constexpr std::uint32_t excludeDesktopElements = 16;  // kCGWindowListExcludeDesktopElements
}  // namespace WindowListOption

// The window server: Quartz window list, displays and synthetic keyboard events.
class WindowServer {
  public:
    virtual ~WindowServer() = default;

    // CGWindowListCopyWindowInfo(options, kCGNullWindowID): front to back. Nothing when
    // the window server answers with no list at all.
    virtual std::optional<std::vector<WindowDescription>> windowList(std::uint32_t options) = 0;
    // CGDisplayCreateUUIDFromDisplayID + CFUUIDCreateString; nothing for an unknown display.
    virtual std::optional<std::string> displayUUID(std::uint32_t displayID) = 0;
    // CGEventCreateKeyboardEvent with a CGEventSourceCreate(kCGEventSourceStateHIDSystemState)
    // source, posted with CGEventPost to the HID event tap location. False when the event
    // could not be made.
    virtual bool postKey(std::uint16_t keyCode, bool down) = 0;
    // Where the pointer is now, in accessibility coordinates: the location of a fresh event
    // (CGEventCreate(nullptr), CGEventGetLocation).
    virtual Point pointerLocation() = 0;
};

}  // namespace vistrel
