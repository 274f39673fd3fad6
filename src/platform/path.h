#pragma once

#include <array>
#include <vector>

#include "platform/geometry.h"

namespace vistrel {

// A vector path in the coordinates of the canvas it is drawn on: subpaths of straight
// lines and cubic Bézier curves. Ovals and rounded rectangles are built from curves here,
// once, so that every platform draws exactly the same outline.
class Path {
  public:
    enum class Verb { move, line, curve, close };

    // One step of the path. `move` and `line` use points[0]; `curve` uses the two control
    // points then the end point; `close` uses none.
    struct Element {
        Verb verb = Verb::move;
        std::array<Point, 3> points{};

        friend bool operator==(const Element&, const Element&) = default;
    };

    Path& moveTo(Point point);
    Path& lineTo(Point point);
    Path& curveTo(Point control1, Point control2, Point end);
    Path& close();

    // Appends a closed subpath.
    Path& addRect(Rect rect);
    Path& addOval(Rect rect);
    // Corner radii larger than half the shorter side are reduced to it.
    Path& addRoundedRect(Rect rect, double radius);

    static Path rect(Rect rect) { return Path().addRect(rect); }
    static Path oval(Rect rect) { return Path().addOval(rect); }
    static Path roundedRect(Rect rect, double radius) {
        return Path().addRoundedRect(rect, radius);
    }

    const std::vector<Element>& elements() const { return elements_; }
    bool isEmpty() const { return elements_.empty(); }
    // The smallest rectangle holding every point of the path, control points included.
    Rect controlBounds() const;

    friend bool operator==(const Path&, const Path&) = default;

  private:
    // A closed subpath around the rectangle with elliptical corners of radii rx and ry.
    Path& addRoundedCorners(Rect rect, double rx, double ry);

    std::vector<Element> elements_;
};

}  // namespace vistrel
