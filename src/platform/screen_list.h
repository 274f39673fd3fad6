#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/geometry.h"

namespace vistrel {

// One NSScreen as AppKit gives it: frames in AppKit's global coordinates (origin at the
// bottom-left of the primary display, y growing upwards). The core flips them into
// accessibility coordinates.
struct ScreenDescription {
    Rect frame;                              // NSScreen.frame
    Rect visibleFrame;                       // NSScreen.visibleFrame (menu bar and Dock excluded)
    std::optional<std::uint32_t> displayID;  // deviceDescription["NSScreenNumber"]
    double backingScaleFactor = 2;
    std::string localizedName;  // NSScreen.localizedName ("Built-in Retina Display")

    friend bool operator==(const ScreenDescription&, const ScreenDescription&) = default;
};

// NSScreen.screens and NSScreen.main. Read on the main thread.
class ScreenList {
  public:
    virtual ~ScreenList() = default;
    // NSScreen.screens: the primary display first.
    virtual std::vector<ScreenDescription> screens() = 0;
    // The index of NSScreen.main in screens(); nothing when there is no main screen.
    virtual std::optional<std::size_t> mainScreenIndex() = 0;
    // NSScreen.screensHaveSeparateSpaces: whether each display has its own Spaces.
    virtual bool screensHaveSeparateSpaces() = 0;
};

}  // namespace vistrel
