#include "ui/kit/glyph_pen.h"

#include <cmath>
#include <numbers>

namespace vistrel {

namespace {

constexpr double degree = std::numbers::pi / 180;
// Arcs are split into pieces no wider than this, each one cubic curve.
constexpr double maxPieceDegrees = 90;
constexpr double barbSpread = 40;

Point onCircle(Point centre, double radius, double radians) {
    return {centre.x + radius * std::cos(radians), centre.y + radius * std::sin(radians)};
}

}  // namespace

GlyphPen& GlyphPen::polyline(std::initializer_list<Point> points) {
    bool first = true;
    for (Point point : points) {
        if (first)
            path_.moveTo(point);
        else
            path_.lineTo(point);
        first = false;
    }
    return *this;
}

GlyphPen& GlyphPen::polygon(std::initializer_list<Point> points) {
    polyline(points);
    path_.close();
    return *this;
}

GlyphPen& GlyphPen::circle(Point centre, double radius) {
    path_.addOval({centre.x - radius, centre.y - radius, radius * 2, radius * 2});
    return *this;
}

GlyphPen& GlyphPen::roundedRect(Rect rect, double radius) {
    path_.addRoundedRect(rect, radius);
    return *this;
}

GlyphPen& GlyphPen::arc(Point centre, double radius, double fromDegrees, double toDegrees) {
    const double sweep = toDegrees - fromDegrees;
    const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / maxPieceDegrees)));
    const double step = sweep / pieces * degree;
    double angle = fromDegrees * degree;
    path_.moveTo(onCircle(centre, radius, angle));
    for (int i = 0; i < pieces; ++i) {
        // The control distance that makes a cubic follow a circle over `step`.
        const double k = 4.0 / 3.0 * std::tan(step / 4) * radius;
        const Point start = onCircle(centre, radius, angle);
        const Point end = onCircle(centre, radius, angle + step);
        path_.curveTo({start.x - k * std::sin(angle), start.y + k * std::cos(angle)},
                      {end.x + k * std::sin(angle + step), end.y - k * std::cos(angle + step)},
                      end);
        angle += step;
    }
    return *this;
}

GlyphPen& GlyphPen::arrowhead(Point tip, double headingDegrees, double length) {
    const double back = (headingDegrees + 180) * degree;
    const Point left = onCircle(tip, length, back - barbSpread * degree);
    const Point right = onCircle(tip, length, back + barbSpread * degree);
    return polyline({left, tip, right});
}

GlyphPen& GlyphPen::add(const Path& path, double scale, Point offset) {
    const auto place = [&](Point p) {
        return Point{offset.x + p.x * scale, offset.y + p.y * scale};
    };
    for (const Path::Element& element : path.elements()) {
        switch (element.verb) {
            case Path::Verb::move:
                path_.moveTo(place(element.points[0]));
                break;
            case Path::Verb::line:
                path_.lineTo(place(element.points[0]));
                break;
            case Path::Verb::curve:
                path_.curveTo(place(element.points[0]), place(element.points[1]),
                              place(element.points[2]));
                break;
            case Path::Verb::close:
                path_.close();
                break;
        }
    }
    return *this;
}

}  // namespace vistrel
