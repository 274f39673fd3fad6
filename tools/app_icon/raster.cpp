#include "raster.h"

#include <algorithm>
#include <cmath>

namespace vistrel {

namespace {

// Sub-scanlines per pixel row: enough that an edge at any slope reads smooth at 16 pixels.
constexpr int samplesPerRow = 16;
// Straight pieces each cubic curve is drawn as.
constexpr int curvePieces = 24;

Point mapped(Point point, double scale, Point offset) {
    return {point.x * scale + offset.x, point.y * scale + offset.y};
}

Point cubic(Point p0, Point p1, Point p2, Point p3, double t) {
    const double u = 1 - t;
    const double a = u * u * u, b = 3 * u * u * t, c = 3 * u * t * t, d = t * t * t;
    return {a * p0.x + b * p1.x + c * p2.x + d * p3.x, a * p0.y + b * p1.y + c * p2.y + d * p3.y};
}

// Adds `amount` of coverage over [from, to) of a row, shared out exactly among its pixels.
void cover(std::vector<double>& row, double from, double to, double amount) {
    const double end = std::min(to, static_cast<double>(row.size()));
    for (double x = std::max(0.0, from); x < end;) {
        const double pixel = std::floor(x);
        const double next = std::min(end, pixel + 1);
        row[static_cast<std::size_t>(pixel)] += (next - x) * amount;
        x = next;
    }
}

}  // namespace

Raster::Raster(int size) : size_(size), pixels_(static_cast<std::size_t>(size * size * 4), 0.0) {}

std::vector<Raster::Edge> Raster::edgesOf(const Path& path, double scale, Point offset) {
    std::vector<Edge> edges;
    Point start, current;
    const auto lineTo = [&](Point to) {
        if (current.y != to.y)
            edges.push_back({current.x, current.y, to.x, to.y, to.y > current.y ? 1 : -1});
        current = to;
    };
    for (const Path::Element& element : path.elements()) {
        switch (element.verb) {
            case Path::Verb::move:
                lineTo(start);  // every subpath is filled closed
                start = current = mapped(element.points[0], scale, offset);
                break;
            case Path::Verb::line:
                lineTo(mapped(element.points[0], scale, offset));
                break;
            case Path::Verb::curve: {
                const Point from = current;
                const Point c1 = mapped(element.points[0], scale, offset);
                const Point c2 = mapped(element.points[1], scale, offset);
                const Point to = mapped(element.points[2], scale, offset);
                for (int i = 1; i <= curvePieces; ++i)
                    lineTo(cubic(from, c1, c2, to, static_cast<double>(i) / curvePieces));
                break;
            }
            case Path::Verb::close:
                lineTo(start);
                break;
        }
    }
    lineTo(start);
    return edges;
}

std::vector<double> Raster::coverage(const std::vector<Edge>& edges, int y) const {
    std::vector<double> row(static_cast<std::size_t>(size_), 0.0);
    std::vector<std::pair<double, int>> crossings;
    for (int sample = 0; sample < samplesPerRow; ++sample) {
        const double sy = y + (sample + 0.5) / samplesPerRow;
        crossings.clear();
        for (const Edge& edge : edges) {
            const double top = std::min(edge.y0, edge.y1), bottom = std::max(edge.y0, edge.y1);
            if (sy < top || sy >= bottom) continue;
            const double t = (sy - edge.y0) / (edge.y1 - edge.y0);
            crossings.emplace_back(edge.x0 + t * (edge.x1 - edge.x0), edge.winding);
        }
        std::sort(crossings.begin(), crossings.end());
        int winding = 0;
        for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
            winding += crossings[i].second;
            if (winding != 0)
                cover(row, crossings[i].first, crossings[i + 1].first, 1.0 / samplesPerRow);
        }
    }
    return row;
}

void Raster::fill(const Path& path, Color color, double scale, Point offset) {
    const std::vector<Edge> edges = edgesOf(path, scale, offset);
    for (int y = 0; y < size_; ++y) {
        const std::vector<double> row = coverage(edges, y);
        for (int x = 0; x < size_; ++x) {
            const double a = std::min(1.0, row[static_cast<std::size_t>(x)]) * color.alpha;
            if (a <= 0) continue;
            double* pixel = &pixels_[static_cast<std::size_t>((y * size_ + x) * 4)];
            pixel[0] = color.red * a + pixel[0] * (1 - a);
            pixel[1] = color.green * a + pixel[1] * (1 - a);
            pixel[2] = color.blue * a + pixel[2] * (1 - a);
            pixel[3] = a + pixel[3] * (1 - a);
        }
    }
}

std::vector<std::uint8_t> Raster::rgba() const {
    std::vector<std::uint8_t> bytes(pixels_.size());
    const auto byte = [](double value) {
        return static_cast<std::uint8_t>(std::lround(std::clamp(value, 0.0, 1.0) * 255));
    };
    for (std::size_t i = 0; i < pixels_.size(); i += 4) {
        const double alpha = pixels_[i + 3];
        for (std::size_t c = 0; c < 3; ++c)
            bytes[i + c] = byte(alpha > 0 ? pixels_[i + c] / alpha : 0);
        bytes[i + 3] = byte(alpha);
    }
    return bytes;
}

}  // namespace vistrel
