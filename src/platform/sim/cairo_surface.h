#pragma once

#include <cairo.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>

namespace vistrel {

// An owned Cairo image surface in premultiplied ARGB32: what the simulator draws into,
// writes as PNG and compares against reference pictures.
class CairoSurface {
  public:
    // A transparent surface of the given size in pixels.
    CairoSurface(int width, int height);
    ~CairoSurface();
    CairoSurface(CairoSurface&& other) noexcept;
    CairoSurface& operator=(CairoSurface&& other) noexcept;
    CairoSurface(const CairoSurface&) = delete;
    CairoSurface& operator=(const CairoSurface&) = delete;

    // Nothing when the file is missing or not a PNG.
    static std::optional<CairoSurface> readPng(const std::filesystem::path& path);
    // Creates the folder when needed; false when the file could not be written.
    bool writePng(const std::filesystem::path& path) const;

    int width() const;
    int height() const;
    // The pixel at (x, y), red, green, blue and alpha, not premultiplied; transparent
    // outside the surface.
    std::array<std::uint8_t, 4> pixel(int x, int y) const;
    // Writes outside the surface are ignored.
    void setPixel(int x, int y, std::array<std::uint8_t, 4> rgba);
    bool holds(int x, int y) const;

    cairo_surface_t* get() const { return surface_; }

  private:
    explicit CairoSurface(cairo_surface_t* adopted) : surface_(adopted) {}

    cairo_surface_t* surface_;
};

}  // namespace vistrel
