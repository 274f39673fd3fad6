#pragma once

#include <cstdint>

#include "platform/ax_element.h"
#include "platform/geometry.h"

namespace vistrel {

// One window thumbnail of Mission Control where the thumbnail names its window: its
// element, its frame (accessibility coordinates) and the window server's number of the
// window it shows (the thumbnail's "wid").
struct MissionControlThumbnail {
    AXElement element;
    Rect frame;
    std::uint32_t window = 0;
};

}  // namespace vistrel
