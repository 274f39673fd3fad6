#pragma once

#include <cstddef>

namespace vistrel {

class SimDesktop;

// A desktop at the far end of what people run: `screens` displays of 1440×900 side by side
// and `windows` windows, ten to an application, dealt out over the screens in turn and
// cascaded on each, so every screen holds its share and Mission Control has them all to
// lay out. The Dock runs; Mission Control is closed.
void populateCrowdedScene(SimDesktop& desktop, std::size_t screens, std::size_t windows);

}  // namespace vistrel
