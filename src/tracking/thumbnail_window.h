#pragma once

#include <optional>

#include "platform/geometry.h"
#include "tracking/ax.h"

namespace vistrel {

// Which window a Mission Control thumbnail shows where WindowManager draws Mission Control
// (macOS 27 on). The system-wide hit-test answers with WindowManager's thumbnail, not the
// window, so the thumbnail's "wid" leads to the window. When the hit-test answers anything
// else, the smallest thumbnail of the current desktop containing the point is taken.
namespace ThumbnailWindow {

std::optional<AX::WindowHit> at(Point point);

}  // namespace ThumbnailWindow

}  // namespace vistrel
