#pragma once

#include <cstdint>
#include <vector>

#include "platform/color.h"
#include "platform/path.h"

namespace vistrel {

// A square picture of whole pixels, filled path by path with anti-aliased edges: the
// application icon is drawn with it at build time, on any machine, with no graphics library.
class Raster {
  public:
    explicit Raster(int size);

    int size() const { return size_; }
    // Fills a path (non-zero winding), its points mapped to pixels by `scale` then `offset`,
    // blending `color` over what is there.
    void fill(const Path& path, Color color, double scale, Point offset);
    // The pixels, top row first, four bytes each: red, green, blue, alpha (not premultiplied).
    std::vector<std::uint8_t> rgba() const;

  private:
    struct Edge {
        double x0, y0, x1, y1;
        int winding;
    };
    static std::vector<Edge> edgesOf(const Path& path, double scale, Point offset);
    // How much of each pixel of row `y` the path covers, 0 to 1.
    std::vector<double> coverage(const std::vector<Edge>& edges, int y) const;

    int size_;
    // Premultiplied red, green, blue and alpha, 0 to 1.
    std::vector<double> pixels_;
};

}  // namespace vistrel
