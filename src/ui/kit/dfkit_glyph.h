#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "platform/canvas.h"
#include "platform/path.h"

namespace vistrel {

// The kit's line glyphs. The order is their number.
enum class DFKitGlyph {
    apps,
    arrow,
    buds,
    call,
    check,
    chevrons,
    clock,
    close,
    cmd,
    cursor,
    display,
    dock,
    dots,
    download,
    eye,
    flag,
    gear,
    globe,
    head,
    info,
    key,
    levels,
    mic,
    minus,
    mute,
    note,
    play,
    playpause,
    plus,
    power,
    refresh,
    search,
    share,
    sliders,
    spark,
    speaker,
    terminal,
    undo,
    volume,
    warning,
    wifi,
    wins,
};

inline constexpr std::size_t glyphCount = 42;
inline constexpr double glyphGrid = 24;
// Glyphs keep this line width at every size.
inline constexpr double glyphLineWidth = 1.6;

// Every glyph, in order.
const std::array<DFKitGlyph, glyphCount>& allGlyphs();
std::string_view rawValue(DFKitGlyph glyph);
std::optional<DFKitGlyph> glyphNamed(std::string_view raw);

// The glyph's pictogram on the 24 by 24 grid, y down, to be stroked.
Path glyphPath(DFKitGlyph glyph);

// The glyph scaled into the square `rect` and stroked 1.6 points wide with round ends.
void drawGlyph(Canvas& canvas, DFKitGlyph glyph, Rect rect, Color color);
// The glyph in a square `side` points wide centred on `centre`.
void drawGlyph(Canvas& canvas, DFKitGlyph glyph, Point centre, double side, Color color);

}  // namespace vistrel
