#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "platform/modal_alert.h"
#include "platform/sim/cairo_alert_painter.h"
#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_screen_renderer.h"

namespace vistrel {

// Mission Control's thumbnails as the renderer draws them, labelled with their window
// titles, the thumbnail of the hovered window, if any, ringed.
std::vector<SimScreenThumbnail> screenThumbnails(SimDesktop& desktop,
                                                 std::optional<SimWindowId> hovered);

// The largest thumbnail Mission Control shows: the one a user is most likely to point at.
std::optional<SimThumbnail> largestThumbnail(SimDesktop& desktop);

// The desktop as it stands with the alert in front of it, its fields (the report dialog's)
// filled in when given; false when the picture cannot be written.
bool writeAlertPicture(SimDesktop& desktop, const AlertContent& alert,
                       const std::optional<SimReportFields>& fields,
                       const std::filesystem::path& path);

}  // namespace vistrel
