#pragma once

#include <cstddef>
#include <functional>

#include "platform/geometry.h"

namespace vistrel {

// A rectangle as fractions of an area (a screen's visible frame): x and y measured from the
// area's top-left corner, w and h as shares of its width and height. No range is enforced: a
// window hanging over its screen's edge keeps, say, a negative x.
struct UnitRect {
    double x = 0;
    double y = 0;
    double w = 0;
    double h = 0;

    // The absolute frame inside `area` with `gap` points between neighbouring windows and
    // between a window and the area's edges; edges and sizes rounded to whole points.
    Rect frame(Rect area, double gap) const;

    // The inverse of frame(in:gap:), unrounded: the unit rectangle that `frame` occupies in
    // `area`. All zero when the area is no larger than the gap.
    static UnitRect of(Rect frame, Rect area, double gap);

    friend bool operator==(const UnitRect&, const UnitRect&) = default;
};

}  // namespace vistrel

template <>
struct std::hash<vistrel::UnitRect> {
    std::size_t operator()(const vistrel::UnitRect& r) const noexcept {
        std::size_t seed = 0;
        for (double value : {r.x, r.y, r.w, r.h}) {
            // Boost's hash_combine mixing constant.
            seed ^= std::hash<double>{}(value) + 0x9e3779b97f4a7c15ULL + (seed << 6) + (seed >> 2);
        }
        return seed;
    }
};
