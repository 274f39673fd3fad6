#include "platform/path.h"

#include <algorithm>
#include <cmath>

namespace vistrel {

namespace {

// How far along its tangent a cubic control point sits for a quarter circle of radius 1.
constexpr double quarterCircleKappa = 0.5522847498307936;

// Appends a quarter of an ellipse from `from` to `to`, bulging towards `corner` (the corner
// of the bounding rectangle the arc rounds off).
void addCorner(Path& path, Point from, Point corner, Point to) {
    const double k = quarterCircleKappa;
    const Point control1{from.x + (corner.x - from.x) * k, from.y + (corner.y - from.y) * k};
    const Point control2{to.x + (corner.x - to.x) * k, to.y + (corner.y - to.y) * k};
    path.curveTo(control1, control2, to);
}

// A straight side between two corners, left out when the corners meet (as on an oval) so
// that no zero-length segment reaches the renderer.
void addSide(Path& path, Point from, Point to) {
    if (from != to) path.lineTo(to);
}

}  // namespace

Path& Path::moveTo(Point point) {
    elements_.push_back({Verb::move, {point}});
    return *this;
}

Path& Path::lineTo(Point point) {
    elements_.push_back({Verb::line, {point}});
    return *this;
}

Path& Path::curveTo(Point control1, Point control2, Point end) {
    elements_.push_back({Verb::curve, {control1, control2, end}});
    return *this;
}

Path& Path::close() {
    elements_.push_back({Verb::close, {}});
    return *this;
}

Path& Path::addRect(Rect r) {
    moveTo({r.minX(), r.minY()});
    lineTo({r.maxX(), r.minY()});
    lineTo({r.maxX(), r.maxY()});
    lineTo({r.minX(), r.maxY()});
    return close();
}

Path& Path::addOval(Rect r) {
    // A rectangle whose elliptical corners meet is an ellipse.
    return addRoundedCorners(r, std::abs(r.width) / 2, std::abs(r.height) / 2);
}

Path& Path::addRoundedRect(Rect r, double radius) {
    const double largest = std::min(std::abs(r.width), std::abs(r.height)) / 2;
    const double clamped = std::clamp(radius, 0.0, largest);
    return addRoundedCorners(r, clamped, clamped);
}

Path& Path::addRoundedCorners(Rect r, double rx, double ry) {
    const double left = r.minX(), right = r.maxX(), top = r.minY(), bottom = r.maxY();
    moveTo({left + rx, top});
    addSide(*this, {left + rx, top}, {right - rx, top});
    addCorner(*this, {right - rx, top}, {right, top}, {right, top + ry});
    addSide(*this, {right, top + ry}, {right, bottom - ry});
    addCorner(*this, {right, bottom - ry}, {right, bottom}, {right - rx, bottom});
    addSide(*this, {right - rx, bottom}, {left + rx, bottom});
    addCorner(*this, {left + rx, bottom}, {left, bottom}, {left, bottom - ry});
    addSide(*this, {left, bottom - ry}, {left, top + ry});
    addCorner(*this, {left, top + ry}, {left, top}, {left + rx, top});
    return close();
}

Rect Path::controlBounds() const {
    bool first = true;
    double minX = 0, minY = 0, maxX = 0, maxY = 0;
    for (const Element& element : elements_) {
        const int count = element.verb == Verb::curve ? 3 : element.verb == Verb::close ? 0 : 1;
        for (int i = 0; i < count; ++i) {
            const Point p = element.points[static_cast<std::size_t>(i)];
            minX = first ? p.x : std::min(minX, p.x);
            minY = first ? p.y : std::min(minY, p.y);
            maxX = first ? p.x : std::max(maxX, p.x);
            maxY = first ? p.y : std::max(maxY, p.y);
            first = false;
        }
    }
    return {minX, minY, maxX - minX, maxY - minY};
}

}  // namespace vistrel
