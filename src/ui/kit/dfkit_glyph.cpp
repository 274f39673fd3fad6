#include "ui/kit/dfkit_glyph.h"

#include <algorithm>

#include "ui/kit/glyph_pen.h"

namespace vistrel {

namespace {

constexpr std::array<std::string_view, glyphCount> rawValues = {
    "apps",    "arrow",    "buds",    "call",    "check",   "chevrons", "clock",
    "close",   "cmd",      "cursor",  "display", "dock",    "dots",     "download",
    "eye",     "flag",     "gear",    "globe",   "head",    "info",     "key",
    "levels",  "mic",      "minus",   "mute",    "note",    "play",     "playpause",
    "plus",    "power",    "refresh", "search",  "share",   "sliders",  "spark",
    "speaker", "terminal", "undo",    "volume",  "warning", "wifi",     "wins"};

}  // namespace

const std::array<DFKitGlyph, glyphCount>& allGlyphs() {
    static const std::array<DFKitGlyph, glyphCount> glyphs = [] {
        std::array<DFKitGlyph, glyphCount> all{};
        for (std::size_t i = 0; i < glyphCount; ++i)
            all[i] = static_cast<DFKitGlyph>(i);
        return all;
    }();
    return glyphs;
}

std::string_view rawValue(DFKitGlyph glyph) {
    return rawValues.at(static_cast<std::size_t>(glyph));
}

std::optional<DFKitGlyph> glyphNamed(std::string_view raw) {
    const auto found = std::find(rawValues.begin(), rawValues.end(), raw);
    if (found == rawValues.end()) return std::nullopt;
    return static_cast<DFKitGlyph>(found - rawValues.begin());
}

void drawGlyph(Canvas& canvas, DFKitGlyph glyph, Rect rect, Color color) {
    canvas.stroke(GlyphPen().add(glyphPath(glyph), rect.width / glyphGrid, rect.origin()).path(),
                  color, {glyphLineWidth, LineCap::round, LineJoin::round});
}

void drawGlyph(Canvas& canvas, DFKitGlyph glyph, Point centre, double side, Color color) {
    drawGlyph(canvas, glyph, {centre.x - side / 2, centre.y - side / 2, side, side}, color);
}

}  // namespace vistrel
