#pragma once

#include <string>

#include "platform/geometry.h"

namespace vistrel {

// One display: its identifier (the display's UUID text, empty when unknown), its whole frame
// and its visible frame (without the menu bar and the Dock), in accessibility coordinates.
struct ScreenInfo {
    std::string id;
    Rect frame;
    Rect visible;

    friend bool operator==(const ScreenInfo&, const ScreenInfo&) = default;
};

}  // namespace vistrel
