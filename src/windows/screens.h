#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/geometry.h"
#include "platform/screen_list.h"
#include "windows/screen_info.h"

namespace vistrel {

// The displays as the layouts see them: a snapshot of the screen list in accessibility
// coordinates, and the screen at a point or holding a rectangle. Main thread only, as the
// screen list is.
struct Screens {
    // Every screen in the screen list's order, the primary display first.
    static std::vector<ScreenInfo> snapshot();
    // The first screen whose frame contains the point.
    static std::optional<ScreenInfo> at(Point point, const std::vector<ScreenInfo>& screens);
    // The first screen containing the rectangle's centre; failing that, the screen sharing
    // the largest area with it (the earlier one on a tie); nothing when none touches it.
    static std::optional<ScreenInfo> holding(Rect rect, const std::vector<ScreenInfo>& screens);
    // The display's UUID text; empty when the screen has no display number or no UUID.
    static std::string id(const ScreenDescription& screen);
    // Converts a rectangle between AppKit's bottom-left space and accessibility's top-left
    // space; the conversion is its own inverse.
    static Rect flip(Rect rect, double primaryHeight);
    // An accessibility rectangle as a window frame in AppKit's space, pivoting on the first
    // screen's height (0 without screens): where the agent puts its own windows.
    static Rect toAppKit(Rect rect);
};

}  // namespace vistrel
