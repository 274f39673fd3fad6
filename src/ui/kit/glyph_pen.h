#pragma once

#include <initializer_list>

#include "platform/path.h"

namespace vistrel {

// Builds a glyph's outline on the 24-point grid from strokes a designer thinks in: open
// polylines, closed polygons, circles, arcs and arrowheads. Angles are in degrees, measured
// clockwise from the positive x axis (y points down).
class GlyphPen {
  public:
    GlyphPen& polyline(std::initializer_list<Point> points);
    GlyphPen& polygon(std::initializer_list<Point> points);
    GlyphPen& circle(Point centre, double radius);
    // A dot: a circle so small that the stroke fills it.
    GlyphPen& dot(Point centre) { return circle(centre, dotRadius); }
    GlyphPen& roundedRect(Rect rect, double radius);
    GlyphPen& arc(Point centre, double radius, double fromDegrees, double toDegrees);
    // Two barbs `length` long meeting at `tip`, for a line arriving there heading
    // `headingDegrees`.
    GlyphPen& arrowhead(Point tip, double headingDegrees, double length);
    // Appends a path drawn elsewhere, each point scaled by `scale` and then moved by
    // `offset`.
    GlyphPen& add(const Path& path, double scale = 1, Point offset = {});

    Path path() const { return path_; }

    static constexpr double dotRadius = 0.6;

  private:
    Path path_;
};

}  // namespace vistrel
