#pragma once

#include <vector>

#include "base/overlay_button.h"
#include "platform/geometry.h"

namespace vistrel {

// The strip of round buttons over one hovered thumbnail, and the safe zone: the polygon in
// which the pointer may travel between the thumbnail and the strip without losing the
// overlay. Global display points, origin at the top-left of the main display, y down.
struct OverlayLayout {
    struct Item {
        OverlayButton kind = OverlayButton::close;
        Rect rect;  // square

        friend bool operator==(const Item&, const Item&) = default;
    };

    std::vector<Item> items;      // strip order, left to right
    std::vector<Point> safeZone;  // closed: the last point joins the first

    // The strip for a thumbnail: close first when enabled, then the other enabled buttons by
    // raw value; the first button's centre 3 points left of and 2 above the thumbnail's
    // top-left corner, so the strip straddles that corner; `gap` points between buttons.
    static OverlayLayout make(Rect thumb, double size, const std::vector<OverlayButton>& enabled,
                              double gap);

    // A pentagon joining the strip (`buttons`: the bounding rectangle of its buttons) to a
    // wedge of the thumbnail's top-left corner.
    static std::vector<Point> zone(Rect thumb, Rect buttons, double size);

    friend bool operator==(const OverlayLayout&, const OverlayLayout&) = default;
};

// The even-odd crossing rule. Points exactly on an edge fall either way; a horizontal edge
// never counts, and an empty polygon contains nothing.
bool polygonContains(const std::vector<Point>& polygon, Point point);

}  // namespace vistrel
