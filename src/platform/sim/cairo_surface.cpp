#include "platform/sim/cairo_surface.h"

#include <algorithm>
#include <cstring>
#include <system_error>
#include <utility>

#include "platform/alpha.h"

namespace vistrel {

namespace {

constexpr int bytesPerPixel = 4;
// Bit positions of the channels in a native-endian ARGB32 word.
constexpr int alphaShift = 24;
constexpr int redShift = 16;
constexpr int greenShift = 8;
constexpr std::uint32_t channelMask = 0xFF;

std::uint8_t channel(std::uint32_t word, int shift) {
    return static_cast<std::uint8_t>((word >> shift) & channelMask);
}

std::uint8_t* pixelAddress(cairo_surface_t* surface, int x, int y) {
    return cairo_image_surface_get_data(surface) +
           static_cast<std::ptrdiff_t>(y) * cairo_image_surface_get_stride(surface) +
           static_cast<std::ptrdiff_t>(x) * bytesPerPixel;
}

}  // namespace

CairoSurface::CairoSurface(int width, int height)
    : surface_(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, std::max(width, 1),
                                          std::max(height, 1))) {}

CairoSurface::~CairoSurface() {
    if (surface_ != nullptr) cairo_surface_destroy(surface_);
}

CairoSurface::CairoSurface(CairoSurface&& other) noexcept
    : surface_(std::exchange(other.surface_, nullptr)) {}

CairoSurface& CairoSurface::operator=(CairoSurface&& other) noexcept {
    std::swap(surface_, other.surface_);
    return *this;
}

std::optional<CairoSurface> CairoSurface::readPng(const std::filesystem::path& path) {
    cairo_surface_t* loaded = cairo_image_surface_create_from_png(path.c_str());
    if (cairo_surface_status(loaded) != CAIRO_STATUS_SUCCESS) {
        cairo_surface_destroy(loaded);
        return std::nullopt;
    }
    // Whatever format the file had, compare and edit in ARGB32.
    CairoSurface converted(cairo_image_surface_get_width(loaded),
                           cairo_image_surface_get_height(loaded));
    cairo_t* cr = cairo_create(converted.get());
    cairo_set_source_surface(cr, loaded, 0, 0);
    cairo_set_operator(cr, CAIRO_OPERATOR_SOURCE);
    cairo_paint(cr);
    cairo_destroy(cr);
    cairo_surface_destroy(loaded);
    return converted;
}

bool CairoSurface::writePng(const std::filesystem::path& path) const {
    std::error_code ignored;
    if (path.has_parent_path()) std::filesystem::create_directories(path.parent_path(), ignored);
    cairo_surface_flush(surface_);
    return cairo_surface_write_to_png(surface_, path.c_str()) == CAIRO_STATUS_SUCCESS;
}

int CairoSurface::width() const {
    return cairo_image_surface_get_width(surface_);
}
int CairoSurface::height() const {
    return cairo_image_surface_get_height(surface_);
}

bool CairoSurface::holds(int x, int y) const {
    return x >= 0 && y >= 0 && x < width() && y < height();
}

std::array<std::uint8_t, 4> CairoSurface::pixel(int x, int y) const {
    if (!holds(x, y)) return {0, 0, 0, 0};
    cairo_surface_flush(surface_);
    std::uint32_t word = 0;
    std::memcpy(&word, pixelAddress(surface_, x, y), sizeof word);
    const std::uint8_t alpha = channel(word, alphaShift);
    return {unpremultiplied(channel(word, redShift), alpha),
            unpremultiplied(channel(word, greenShift), alpha),
            unpremultiplied(channel(word, 0), alpha), alpha};
}

void CairoSurface::setPixel(int x, int y, std::array<std::uint8_t, 4> rgba) {
    if (!holds(x, y)) return;
    cairo_surface_flush(surface_);
    const std::uint8_t alpha = rgba[3];
    const std::uint32_t word = std::uint32_t{alpha} << alphaShift |
                               std::uint32_t{premultiplied(rgba[0], alpha)} << redShift |
                               std::uint32_t{premultiplied(rgba[1], alpha)} << greenShift |
                               std::uint32_t{premultiplied(rgba[2], alpha)};
    std::memcpy(pixelAddress(surface_, x, y), &word, sizeof word);
    cairo_surface_mark_dirty(surface_);
}

}  // namespace vistrel
