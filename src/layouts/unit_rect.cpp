#include "layouts/unit_rect.h"

#include <cmath>

namespace vistrel {

namespace {

// Half the gap goes on each side of a slot, so neighbours end up one whole gap apart and the
// outer windows one gap from the area's edges.
double halfOf(double gap) {
    return gap * 0.5;
}

}  // namespace

Rect UnitRect::frame(Rect area, double gap) const {
    const double half = halfOf(gap);
    const Rect inner = area.insetBy(half, half);
    const Rect slot{inner.minX() + x * inner.width, inner.minY() + y * inner.height,
                    w * inner.width, h * inner.height};
    const Rect result = slot.insetBy(half, half);
    // std::round rounds halves away from zero.
    return {std::round(result.minX()), std::round(result.minY()), std::round(result.width),
            std::round(result.height)};
}

UnitRect UnitRect::of(Rect frame, Rect area, double gap) {
    const double half = halfOf(gap);
    const Rect inner = area.insetBy(half, half);
    if (!(inner.width > 0) || !(inner.height > 0)) return {};
    const Rect grown = frame.insetBy(-half, -half);
    return {(grown.minX() - inner.minX()) / inner.width,
            (grown.minY() - inner.minY()) / inner.height, grown.width / inner.width,
            grown.height / inner.height};
}

}  // namespace vistrel
