#include "platform/sim/sim_icon.h"

#include <numbers>

#include "platform/sim/cairo_surface.h"

namespace vistrel {

namespace {

// Proportions of the macOS icon grid, as shares of the icon's side.
constexpr double margin = 0.1;
constexpr double cornerRadius = 0.18;
constexpr double ringRadius = 0.2;
constexpr double ringWidth = 0.07;
// The top of the square is the colour blended this far towards white.
constexpr double topLightening = 0.35;

void roundedSquare(cairo_t* cr, double origin, double side, double radius) {
    const double end = origin + side;
    constexpr double quarter = std::numbers::pi / 2;
    cairo_new_sub_path(cr);
    cairo_arc(cr, end - radius, origin + radius, radius, -quarter, 0);
    cairo_arc(cr, end - radius, end - radius, radius, 0, quarter);
    cairo_arc(cr, origin + radius, end - radius, radius, quarter, 2 * quarter);
    cairo_arc(cr, origin + radius, origin + radius, radius, 2 * quarter, 3 * quarter);
    cairo_close_path(cr);
}

std::shared_ptr<const Image> imageOf(const CairoSurface& surface) {
    auto image = std::make_shared<Image>();
    image->width = surface.width();
    image->height = surface.height();
    image->rgba.reserve(static_cast<std::size_t>(image->width) * image->height * 4);
    for (int y = 0; y < image->height; ++y) {
        for (int x = 0; x < image->width; ++x) {
            const auto pixel = surface.pixel(x, y);
            image->rgba.insert(image->rgba.end(), pixel.begin(), pixel.end());
        }
    }
    return image;
}

}  // namespace

std::shared_ptr<const Image> simApplicationIcon(Color color, int pixels) {
    if (pixels <= 0) return nullptr;
    CairoSurface surface(pixels, pixels);
    cairo_t* cr = cairo_create(surface.get());
    const double side = pixels;
    roundedSquare(cr, margin * side, (1 - 2 * margin) * side, cornerRadius * side);
    const Color top = color.blended(topLightening, Color::white());
    cairo_pattern_t* gradient = cairo_pattern_create_linear(0, 0, 0, side);
    cairo_pattern_add_color_stop_rgb(gradient, 0, top.red, top.green, top.blue);
    cairo_pattern_add_color_stop_rgb(gradient, 1, color.red, color.green, color.blue);
    cairo_set_source(cr, gradient);
    cairo_fill(cr);
    cairo_pattern_destroy(gradient);
    cairo_arc(cr, side / 2, side / 2, ringRadius * side, 0, 2 * std::numbers::pi);
    cairo_set_source_rgb(cr, 1, 1, 1);
    cairo_set_line_width(cr, ringWidth * side);
    cairo_stroke(cr);
    cairo_destroy(cr);
    cairo_surface_flush(surface.get());
    return imageOf(surface);
}

}  // namespace vistrel
