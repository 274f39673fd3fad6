#pragma once

#include <vector>

#include "platform/geometry.h"

namespace vistrel {

// Where simulated Mission Control draws the thumbnails of one screen's windows.
class SimThumbnailLayout {
  public:
    // Between thumbnails, in points, and the largest scale a thumbnail is drawn at.
    static constexpr double gap = 32;
    static constexpr double largestScale = 0.8;

    // Thumbnail frames for windows of these sizes within `area`: scaled alike (never
    // above largestScale), aspect kept, in rows of as many as give the largest scale, each
    // row centred and the rows centred as a block. Whole points.
    static std::vector<Rect> layOut(const std::vector<Size>& windows, Rect area);
};

}  // namespace vistrel
