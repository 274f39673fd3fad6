#include "platform/sim/cairo_canvas.h"

#include <cmath>

namespace vistrel {

namespace {

cairo_line_cap_t cairoCap(LineCap cap) {
    switch (cap) {
        case LineCap::butt:
            return CAIRO_LINE_CAP_BUTT;
        case LineCap::round:
            return CAIRO_LINE_CAP_ROUND;
        case LineCap::square:
            return CAIRO_LINE_CAP_SQUARE;
    }
    return CAIRO_LINE_CAP_BUTT;
}

cairo_line_join_t cairoJoin(LineJoin join) {
    switch (join) {
        case LineJoin::miter:
            return CAIRO_LINE_JOIN_MITER;
        case LineJoin::round:
            return CAIRO_LINE_JOIN_ROUND;
        case LineJoin::bevel:
            return CAIRO_LINE_JOIN_BEVEL;
    }
    return CAIRO_LINE_JOIN_MITER;
}

// A Cairo surface holding the bitmap's pixels.
CairoSurface surfaceOf(const Image& image) {
    CairoSurface surface(image.width, image.height);
    constexpr std::size_t channels = 4;
    for (int y = 0; y < image.height; ++y) {
        for (int x = 0; x < image.width; ++x) {
            const std::size_t at =
                (static_cast<std::size_t>(y) * static_cast<std::size_t>(image.width) +
                 static_cast<std::size_t>(x)) *
                channels;
            surface.setPixel(
                x, y, {image.rgba[at], image.rgba[at + 1], image.rgba[at + 2], image.rgba[at + 3]});
        }
    }
    return surface;
}

}  // namespace

void CairoCanvas::setPath(const Path& path) {
    cairo_new_path(cr_);
    for (const Path::Element& e : path.elements()) {
        const auto& p = e.points;
        switch (e.verb) {
            case Path::Verb::move:
                cairo_move_to(cr_, p[0].x, p[0].y);
                break;
            case Path::Verb::line:
                cairo_line_to(cr_, p[0].x, p[0].y);
                break;
            case Path::Verb::curve:
                cairo_curve_to(cr_, p[0].x, p[0].y, p[1].x, p[1].y, p[2].x, p[2].y);
                break;
            case Path::Verb::close:
                cairo_close_path(cr_);
                break;
        }
    }
}

void CairoCanvas::setColor(Color color) {
    cairo_set_source_rgba(cr_, color.red, color.green, color.blue, color.alpha);
}

void CairoCanvas::fill(const Path& path, Color color) {
    setPath(path);
    setColor(color);
    cairo_set_fill_rule(cr_, CAIRO_FILL_RULE_WINDING);
    cairo_fill(cr_);
}

void CairoCanvas::stroke(const Path& path, Color color, const StrokeStyle& style) {
    setPath(path);
    setColor(color);
    cairo_set_line_width(cr_, style.width);
    cairo_set_line_cap(cr_, cairoCap(style.cap));
    cairo_set_line_join(cr_, cairoJoin(style.join));
    cairo_stroke(cr_);
}

void CairoCanvas::clip(const Path& path) {
    setPath(path);
    cairo_set_fill_rule(cr_, CAIRO_FILL_RULE_WINDING);
    cairo_clip(cr_);
}

std::vector<cairo_glyph_t> CairoCanvas::glyphs(const TextRun& run) {
    cairo_set_font_face(cr_, fonts_.face(run.font));
    cairo_set_font_size(cr_, run.font.size);
    cairo_glyph_t* made = nullptr;
    int count = 0;
    const cairo_status_t status = cairo_scaled_font_text_to_glyphs(
        cairo_get_scaled_font(cr_), 0, 0, run.text.data(), static_cast<int>(run.text.size()), &made,
        &count, nullptr, nullptr, nullptr);
    std::vector<cairo_glyph_t> result;
    if (status == CAIRO_STATUS_SUCCESS) result.assign(made, made + count);
    cairo_glyph_free(made);
    // Letter spacing: every glyph moves right by the kern of all characters before it.
    for (std::size_t i = 0; i < result.size(); ++i)
        result[i].x += static_cast<double>(i) * run.kern;
    return result;
}

void CairoCanvas::drawText(const TextRun& run, Point baseline) {
    if (run.text.empty()) return;
    cairo_save(cr_);
    cairo_translate(cr_, baseline.x, baseline.y);
    if (yUp_) cairo_scale(cr_, 1, -1);
    setColor(run.color);
    const auto laid = glyphs(run);
    cairo_show_glyphs(cr_, laid.data(), static_cast<int>(laid.size()));
    cairo_restore(cr_);
}

double CairoCanvas::textWidth(const TextRun& run) {
    if (run.text.empty()) return 0;
    cairo_save(cr_);
    const auto laid = glyphs(run);
    cairo_text_extents_t extents{};
    cairo_glyph_extents(cr_, laid.data(), static_cast<int>(laid.size()), &extents);
    cairo_restore(cr_);
    return extents.x_advance + run.kern;
}

void CairoCanvas::drawImage(const std::shared_ptr<const Image>& image, Rect rect) {
    if (!image || !image->isValid() || rect.isEmpty()) return;
    const CairoSurface pixels = surfaceOf(*image);
    cairo_save(cr_);
    // The image's first row goes to the rectangle's top: its minimum y when y goes down,
    // its maximum y when y goes up.
    cairo_translate(cr_, rect.minX(), yUp_ ? rect.maxY() : rect.minY());
    cairo_scale(cr_, rect.width / image->width,
                (yUp_ ? -rect.height : rect.height) / image->height);
    cairo_set_source_surface(cr_, pixels.get(), 0, 0);
    // Edge pixels repeat outwards, so a scaled bitmap does not fade into transparency.
    cairo_pattern_set_extend(cairo_get_source(cr_), CAIRO_EXTEND_PAD);
    cairo_pattern_set_filter(cairo_get_source(cr_), CAIRO_FILTER_GOOD);
    cairo_rectangle(cr_, 0, 0, image->width, image->height);
    cairo_fill(cr_);
    cairo_restore(cr_);
}

void drawDisplayList(cairo_t* cr, const DisplayList& list, Size viewSize, CairoFonts& fonts) {
    cairo_save(cr);
    const bool yUp = !list.flipped();
    if (yUp) {
        cairo_translate(cr, 0, viewSize.height);
        cairo_scale(cr, 1, -1);
    }
    CairoCanvas canvas(cr, fonts, yUp);
    list.replay(canvas);
    cairo_restore(cr);
}

CairoSurface renderDisplayList(const DisplayList& list, Size viewSize, double scale,
                               CairoFonts& fonts) {
    CairoSurface surface(static_cast<int>(std::ceil(viewSize.width * scale)),
                         static_cast<int>(std::ceil(viewSize.height * scale)));
    cairo_t* cr = cairo_create(surface.get());
    cairo_scale(cr, scale, scale);
    drawDisplayList(cr, list, viewSize, fonts);
    cairo_destroy(cr);
    return surface;
}

}  // namespace vistrel
