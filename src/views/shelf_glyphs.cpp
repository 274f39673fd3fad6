#include "views/shelf_glyphs.h"

#include <cmath>
#include <numbers>

namespace vistrel {

namespace {

// The loops are as wide as the square is: the symbol is three loop radii to each side of
// its centre, the square one radius.
constexpr double radiiPerHalfSide = 3;
constexpr double quarterTurn = std::numbers::pi / 2;
// Three quarters of a turn: each loop leaves the square along one side and comes back
// along the other.
constexpr int loopQuarters = 3;

Point onCircle(Point centre, double radius, double angle) {
    return {centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
}

// A quarter of a circle as one cubic curve, from `from` radians, turning by `sweep` (±π/2).
void quarterArc(Path& path, Point centre, double radius, double from, double sweep) {
    // The control distance that makes a cubic follow a circle over a quarter turn.
    const double k = 4.0 / 3.0 * std::tan(sweep / 4) * radius;
    const Point start = onCircle(centre, radius, from);
    const Point end = onCircle(centre, radius, from + sweep);
    const Point c1{start.x - k * std::sin(from), start.y + k * std::cos(from)};
    const Point c2{end.x + k * std::sin(from + sweep), end.y - k * std::cos(from + sweep)};
    path.curveTo(c1, c2, end);
}

// One loop at a corner of the square: `sx`, `sy` (±1) point away from the square. The loop
// starts where the square's vertical side runs on, turns three quarters round its centre
// away from the square and ends on the horizontal side's extension.
void loop(Path& path, Point corner, double r, double sx, double sy) {
    const Point centre{corner.x + sx * r, corner.y + sy * r};
    // Angle of the start point (on the vertical side, level with the centre) seen from the
    // centre, and the turn's direction that goes round the far side.
    const double start = sx > 0 ? std::numbers::pi : 0;
    const double turn = (sx * sy > 0 ? -1 : 1) * quarterTurn;
    path.moveTo(onCircle(centre, r, start));
    for (int q = 0; q < loopQuarters; ++q)
        quarterArc(path, centre, r, start + q * turn, turn);
}

}  // namespace

Path ShelfGlyphs::command(Point centre, double side) {
    const double r = side / 2 / radiiPerHalfSide;
    const double left = centre.x - r, right = centre.x + r;
    const double top = centre.y - r, bottom = centre.y + r;
    Path path;
    // The square's sides, each run on by a radius at both ends into the loops.
    path.moveTo({left, top - r}).lineTo({left, bottom + r});
    path.moveTo({right, top - r}).lineTo({right, bottom + r});
    path.moveTo({left - r, top}).lineTo({right + r, top});
    path.moveTo({left - r, bottom}).lineTo({right + r, bottom});
    loop(path, {left, top}, r, -1, -1);
    loop(path, {right, top}, r, 1, -1);
    loop(path, {left, bottom}, r, -1, 1);
    loop(path, {right, bottom}, r, 1, 1);
    return path;
}

Path ShelfGlyphs::plus(Point centre, double arm) {
    return Path()
        .moveTo({centre.x - arm, centre.y})
        .lineTo({centre.x + arm, centre.y})
        .moveTo({centre.x, centre.y - arm})
        .lineTo({centre.x, centre.y + arm});
}

Path ShelfGlyphs::cross(Point centre, double arm) {
    return Path()
        .moveTo({centre.x - arm, centre.y - arm})
        .lineTo({centre.x + arm, centre.y + arm})
        .moveTo({centre.x - arm, centre.y + arm})
        .lineTo({centre.x + arm, centre.y - arm});
}

}  // namespace vistrel
