#pragma once

#include <cairo.h>

#include <vector>

#include "platform/canvas.h"
#include "platform/display_list.h"
#include "platform/sim/cairo_fonts.h"
#include "platform/sim/cairo_surface.h"

namespace vistrel {

// Draws canvas calls with Cairo: the simulator's stand-in for a Core Graphics context.
class CairoCanvas : public Canvas {
  public:
    // `yUp`: the context's current space has y going up (a display list that is not
    // flipped), so text and images are turned upright locally.
    CairoCanvas(cairo_t* cr, CairoFonts& fonts, bool yUp) : cr_(cr), fonts_(fonts), yUp_(yUp) {}

    void fill(const Path& path, Color color) override;
    void stroke(const Path& path, Color color, const StrokeStyle& style) override;
    void drawText(const TextRun& run, Point baseline) override;
    void drawImage(const std::shared_ptr<const Image>& image, Rect rect) override;
    void clip(const Path& path) override;
    void save() override { cairo_save(cr_); }
    void restore() override { cairo_restore(cr_); }
    void translate(double dx, double dy) override { cairo_translate(cr_, dx, dy); }
    void scale(double sx, double sy) override { cairo_scale(cr_, sx, sy); }

    // How far the run advances, letter spacing included, in points.
    double textWidth(const TextRun& run);

  private:
    // The run's glyphs at the origin, letter spacing applied; the font is set on the context.
    std::vector<cairo_glyph_t> glyphs(const TextRun& run);
    void setPath(const Path& path);
    void setColor(Color color);

    cairo_t* cr_;
    CairoFonts& fonts_;
    bool yUp_;
};

// Replays a display list into a view of the given size whose top-left corner is at the
// origin of the context's current space (y down, in points).
void drawDisplayList(cairo_t* cr, const DisplayList& list, Size viewSize, CairoFonts& fonts);

// Renders a display list alone into a new transparent surface, `scale` pixels per point.
CairoSurface renderDisplayList(const DisplayList& list, Size viewSize, double scale,
                               CairoFonts& fonts);

}  // namespace vistrel
