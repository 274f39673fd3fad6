#pragma once

#include <optional>
#include <vector>

#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_screen_renderer.h"

namespace vistrel {

// Mission Control's thumbnails as the renderer draws them, labelled with their window
// titles, the thumbnail of the hovered window, if any, ringed.
std::vector<SimScreenThumbnail> screenThumbnails(SimDesktop& desktop,
                                                 std::optional<SimWindowId> hovered);

// The largest thumbnail Mission Control shows: the one a user is most likely to point at.
std::optional<SimThumbnail> largestThumbnail(SimDesktop& desktop);

}  // namespace vistrel
