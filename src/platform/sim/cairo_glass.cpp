#include "platform/sim/cairo_glass.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

#include "platform/sim/cairo_canvas.h"

namespace vistrel {

namespace {

using Pixel = std::uint32_t;  // native-endian premultiplied ARGB32
constexpr int channels = 4;
constexpr int bitsPerChannel = 8;
constexpr Pixel channelMask = 0xFF;
constexpr int alphaChannel = 3;  // channels are numbered from the lowest byte: B, G, R, A
constexpr int redChannel = 2;
constexpr int greenChannel = 1;
constexpr int blueChannel = 0;
// Rec. 709 luma weights: the grey a colour is pushed away from.
constexpr double redLuma = 0.2126;
constexpr double greenLuma = 0.7152;
constexpr double blueLuma = 0.0722;

int channelOf(Pixel pixel, int channel) {
    return static_cast<int>((pixel >> (channel * bitsPerChannel)) & channelMask);
}

Pixel packed(const std::array<int, channels>& values) {
    Pixel pixel = 0;
    for (int c = 0; c < channels; ++c)
        pixel |= static_cast<Pixel>(values[c]) << (c * bitsPerChannel);
    return pixel;
}

// One line of `count` pixels, `step` pixels apart, averaged over a window of 2r + 1 with
// the end pixels repeated beyond the ends.
void blurLine(Pixel* line, std::ptrdiff_t step, int count, int r, std::vector<Pixel>& copy) {
    copy.resize(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        copy[i] = line[i * step];
    const auto at = [&](int i) {
        return copy[static_cast<std::size_t>(std::clamp(i, 0, count - 1))];
    };
    std::array<int, channels> sum{};
    for (int i = -r; i <= r; ++i) {
        for (int c = 0; c < channels; ++c)
            sum[c] += channelOf(at(i), c);
    }
    const int window = 2 * r + 1;
    for (int i = 0; i < count; ++i) {
        std::array<int, channels> mean{};
        for (int c = 0; c < channels; ++c)
            mean[c] = (sum[c] + window / 2) / window;
        line[i * step] = packed(mean);
        for (int c = 0; c < channels; ++c)
            sum[c] += channelOf(at(i + r + 1), c) - channelOf(at(i - r), c);
    }
}

void boxBlur(CairoSurface& surface, int r, int passes) {
    cairo_surface_flush(surface.get());
    auto* data = reinterpret_cast<Pixel*>(cairo_image_surface_get_data(surface.get()));
    const std::ptrdiff_t stride = cairo_image_surface_get_stride(surface.get()) / channels;
    const int width = surface.width();
    const int height = surface.height();
    std::vector<Pixel> copy;
    for (int pass = 0; pass < passes; ++pass) {
        for (int y = 0; y < height; ++y)
            blurLine(data + y * stride, 1, width, r, copy);
        for (int x = 0; x < width; ++x)
            blurLine(data + x, stride, height, r, copy);
    }
    cairo_surface_mark_dirty(surface.get());
}

// Pushes every colour away from its grey; premultiplied channels stay within their alpha.
void saturate(CairoSurface& surface, double amount) {
    cairo_surface_flush(surface.get());
    auto* data = reinterpret_cast<Pixel*>(cairo_image_surface_get_data(surface.get()));
    const std::ptrdiff_t stride = cairo_image_surface_get_stride(surface.get()) / channels;
    for (int y = 0; y < surface.height(); ++y) {
        for (int x = 0; x < surface.width(); ++x) {
            Pixel& pixel = data[y * stride + x];
            const int alpha = channelOf(pixel, alphaChannel);
            const double grey = redLuma * channelOf(pixel, redChannel) +
                                greenLuma * channelOf(pixel, greenChannel) +
                                blueLuma * channelOf(pixel, blueChannel);
            std::array<int, channels> values{};
            values[alphaChannel] = alpha;
            for (int c : {redChannel, greenChannel, blueChannel}) {
                const double pushed = grey + (channelOf(pixel, c) - grey) * amount;
                values[c] = std::clamp(static_cast<int>(std::lround(pushed)), 0, alpha);
            }
            pixel = packed(values);
        }
    }
    cairo_surface_mark_dirty(surface.get());
}

// Device pixels per unit of the context's user space.
double deviceScale(cairo_t* cr) {
    double dx = 1, dy = 0;
    cairo_user_to_device_distance(cr, &dx, &dy);
    return std::hypot(dx, dy);
}

}  // namespace

CairoGlass::CairoGlass(cairo_t* cr, Rect frame)
    : frame_(frame), region_(regionBeneath(cr, frame)), backdrop_(blurredCopy(cr, region_)) {}

CairoGlass::Region CairoGlass::regionBeneath(cairo_t* cr, Rect frame) {
    cairo_surface_t* target = cairo_get_target(cr);
    if (cairo_surface_get_type(target) != CAIRO_SURFACE_TYPE_IMAGE) return {};
    double left = frame.minX(), top = frame.minY();
    double right = frame.maxX(), bottom = frame.maxY();
    cairo_user_to_device(cr, &left, &top);
    cairo_user_to_device(cr, &right, &bottom);
    // The blur reaches this far: what lies just outside the frame shows at its edges.
    const double reach = std::ceil(blurRadius * deviceScale(cr)) * blurPasses;
    const int x0 = std::max(0, static_cast<int>(std::floor(std::min(left, right) - reach)));
    const int y0 = std::max(0, static_cast<int>(std::floor(std::min(top, bottom) - reach)));
    const int x1 = std::min(cairo_image_surface_get_width(target),
                            static_cast<int>(std::ceil(std::max(left, right) + reach)));
    const int y1 = std::min(cairo_image_surface_get_height(target),
                            static_cast<int>(std::ceil(std::max(top, bottom) + reach)));
    if (x1 <= x0 || y1 <= y0) return {};
    return {x0, y0, x1 - x0, y1 - y0};
}

CairoSurface CairoGlass::blurredCopy(cairo_t* cr, Region region) {
    CairoSurface copy(region.width, region.height);
    if (region.width == 0) return copy;
    cairo_surface_t* target = cairo_get_target(cr);
    cairo_surface_flush(target);
    cairo_t* into = cairo_create(copy.get());
    cairo_set_source_surface(into, target, -region.x, -region.y);
    cairo_set_operator(into, CAIRO_OPERATOR_SOURCE);
    cairo_paint(into);
    cairo_destroy(into);
    const int radius = static_cast<int>(std::lround(blurRadius * deviceScale(cr)));
    boxBlur(copy, radius, blurPasses);
    saturate(copy, saturation);
    return copy;
}

void CairoGlass::paint(cairo_t* cr, CairoFonts& fonts, double radius) const {
    const Path shape = Path::roundedRect(frame_, radius);
    cairo_save(cr);
    CairoCanvas canvas(cr, fonts, false);
    canvas.clip(shape);
    if (region_.width > 0) {
        // The copy is placed in device pixels, where it was taken from.
        cairo_matrix_t user;
        cairo_get_matrix(cr, &user);
        cairo_identity_matrix(cr);
        cairo_set_source_surface(cr, backdrop_.get(), region_.x, region_.y);
        cairo_set_matrix(cr, &user);
        cairo_paint(cr);
    }
    canvas.fill(shape, {veilGrey, veilGrey, veilGrey, veilAlpha});
    cairo_restore(cr);
}

}  // namespace vistrel
