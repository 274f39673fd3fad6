#pragma once

#include <algorithm>
#include <cmath>

namespace vistrel {

// Geometry in accessibility coordinates: points, origin at the top-left of the
// primary display, y growing downwards. The minimum y is the top edge.

struct Point {
    double x = 0;
    double y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
    double width = 0;
    double height = 0;

    friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    static Rect of(Point origin, Size size) {
        return {origin.x, origin.y, size.width, size.height};
    }

    Point origin() const { return {x, y}; }
    Size size() const { return {width, height}; }

    double minX() const { return std::min(x, x + width); }
    double midX() const { return x + width / 2; }
    double maxX() const { return std::max(x, x + width); }
    double minY() const { return std::min(y, y + height); }
    double midY() const { return y + height / 2; }
    double maxY() const { return std::max(y, y + height); }
    Point mid() const { return {midX(), midY()}; }

    bool isEmpty() const { return width == 0 || height == 0; }
    double area() const { return std::abs(width * height); }

    // Min edges inclusive, max edges exclusive, as on macOS.
    bool contains(Point p) const {
        return !isEmpty() && p.x >= minX() && p.x < maxX() && p.y >= minY() && p.y < maxY();
    }

    bool contains(Rect r) const {
        return !isEmpty() && !r.isEmpty() && r.minX() >= minX() && r.maxX() <= maxX() &&
               r.minY() >= minY() && r.maxY() <= maxY();
    }

    // The overlapping part; empty (all zero) when the two do not overlap.
    Rect intersection(Rect r) const {
        const double left = std::max(minX(), r.minX());
        const double top = std::max(minY(), r.minY());
        const double right = std::min(maxX(), r.maxX());
        const double bottom = std::min(maxY(), r.maxY());
        if (right <= left || bottom <= top) return {};
        return {left, top, right - left, bottom - top};
    }

    bool intersects(Rect r) const { return !intersection(r).isEmpty(); }

    // The smallest rectangle holding both; an empty rectangle adds nothing.
    Rect unite(Rect r) const {
        if (isEmpty()) return r;
        if (r.isEmpty()) return *this;
        const double left = std::min(minX(), r.minX());
        const double top = std::min(minY(), r.minY());
        return {left, top, std::max(maxX(), r.maxX()) - left, std::max(maxY(), r.maxY()) - top};
    }

    // Negative insets grow the rectangle.
    Rect insetBy(double dx, double dy) const {
        return {minX() + dx, minY() + dy, std::abs(width) - 2 * dx, std::abs(height) - 2 * dy};
    }

    Rect offsetBy(double dx, double dy) const { return {x + dx, y + dy, width, height}; }

    // The smallest rectangle with whole-number edges that holds this one.
    Rect integral() const {
        const double left = std::floor(minX());
        const double top = std::floor(minY());
        return {left, top, std::ceil(maxX()) - left, std::ceil(maxY()) - top};
    }

    friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace vistrel
