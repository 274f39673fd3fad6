#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/display_list.h"
#include "platform/path.h"

namespace vistrel {

// The marks an app of the kit can show; this agent uses `vistrel`.
enum class DFKitMark { vistrel };

std::string_view rawValue(DFKitMark mark);

// The mark's outline in its 100 by 100 design space, y down.
Path markPath(DFKitMark mark);

// The mark filled in `color` and scaled to a square of `size` points: a flipped display
// list, as an image of that size. `dotted` adds a dot in the mark's empty top-left corner,
// telling that something waits in the panel.
std::shared_ptr<const DisplayList> markImage(DFKitMark mark, double size, Color color,
                                             bool dotted = false);

// The identity shown in a panel header: a display name and a mark.
struct DFKitApp {
    std::string name;
    DFKitMark mark = DFKitMark::vistrel;
};

}  // namespace vistrel
