#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/ax_element.h"
#include "platform/geometry.h"

namespace vistrel {

// One window thumbnail of Mission Control as read from its host's tree: its element, its
// frame (accessibility coordinates), its title (the window server's title of the window it
// shows; missing on some), its identifier ("<bundle id>.space.<n>" from macOS 27), the
// frame of the display group it sits in (when that group has one), and the window server's
// number of the window it shows where the thumbnail names it ("wid"; 0 where it does not).
struct MissionControlThumbnail {
    AXElement element;
    Rect frame;
    std::uint32_t window = 0;
    std::optional<std::string> title;
    std::optional<std::string> identifier;
    std::optional<Rect> display;
};

}  // namespace vistrel
