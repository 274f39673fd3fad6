#include "layouts/shelf_layout.h"

#include <algorithm>
#include <cmath>

namespace vistrel {

namespace {

constexpr double cellPitch = ShelfLayout::cellSize.width + ShelfLayout::cellSpacing;
// Grown cell rectangles meet exactly: 2 × 6 is the spacing between cells.
constexpr double cellHitSlop = 6;
constexpr double keepOpenSlop = 24;
// The band around the pill that keeps or unfolds the shelf reaches far below it, so that
// moving the pointer to the screen's bottom edge does not fold the shelf.
constexpr double pillBandSide = 24;
constexpr double pillBandAbove = 10;
constexpr double pillBandBelow = 140;

// The width of the templates and the divider's gap before them.
double templateBand(int templates) {
    if (templates < 1) return 0;
    return templates * ShelfLayout::cellSize.width + (templates - 1) * ShelfLayout::cellSpacing +
           ShelfLayout::dividerGap;
}

// How many saved layouts get a cell: what fits after the save cell, at most nine.
int savedCellCount(int saved, double band, double areaWidth) {
    const double sides = 2 * ShelfLayout::margin + 2 * ShelfLayout::padding;
    const double fitting =
        std::floor((areaWidth - sides - band + ShelfLayout::cellSpacing) / cellPitch);
    const double shown = std::min({fitting - 1, double(saved), double(ShelfLayout::maxSavedCells)});
    return shown > 0 ? static_cast<int>(shown) : 0;
}

ShelfLayout::Cell cellAt(ShelfLayout::Item item, double x, double y) {
    return {item, Rect::of({x, y}, ShelfLayout::cellSize),
            Rect::of({x, y}, ShelfLayout::screenSize)};
}

// Inclusive at all four edges, unlike Rect::contains.
bool withinInclusive(Point p, double minX, double maxX, double minY, double maxY) {
    return p.x >= minX && p.x <= maxX && p.y >= minY && p.y <= maxY;
}

}  // namespace

ShelfLayout ShelfLayout::make(int saved, int templates, Rect area) {
    templates = std::max(templates, 0);
    const double band = templateBand(templates);
    const int shown = savedCellCount(saved, band, area.width);
    const double width = band + (shown + 1) * cellSize.width + shown * cellSpacing + 2 * padding;

    ShelfLayout layout;
    layout.frame = {std::round(area.midX() - width / 2), std::round(area.maxY() - margin - height),
                    width, height};
    const double top = layout.frame.minY() + padding;
    double x = layout.frame.minX() + padding;
    for (int i = 0; i < shown; ++i, x += cellPitch)
        layout.cells.push_back(cellAt(Item::saved(i), x, top));
    layout.cells.push_back(cellAt(Item::save(), x, top));
    x += cellPitch;
    if (templates > 0) {
        // The divider's gap is the usual spacing plus the rest of its 25 points.
        x += dividerGap - cellSpacing;
        layout.divider = x - dividerGap / 2;
        for (int j = 0; j < templates; ++j, x += cellPitch) {
            layout.cells.push_back(cellAt(Item::layoutTemplate(j), x, top));
        }
    }
    layout.pill = {std::round(layout.frame.midX() - pillSize.width / 2),
                   layout.frame.maxY() - pillSize.height, pillSize.width, pillSize.height};
    return layout;
}

std::optional<ShelfLayout::Cell> ShelfLayout::cell(Point at) const {
    if (!frame.contains(at)) return std::nullopt;
    for (const auto& c : cells) {
        // Inclusive, so that on the border two grown neighbours share, the left one wins.
        const Rect grown = c.rect.insetBy(-cellHitSlop, -cellHitSlop);
        if (withinInclusive(at, grown.minX(), grown.maxX(), grown.minY(), grown.maxY())) return c;
    }
    return std::nullopt;
}

std::optional<SlotRef> ShelfLayout::slot(Point at,
                                         const std::vector<LayoutTemplate>& templates) const {
    for (const auto& c : cells) {
        if (c.item.kind != Item::Kind::layoutTemplate || c.item.index >= int(templates.size()) ||
            !c.screen.contains(at)) {
            continue;
        }
        const auto& slots = templates[c.item.index].slots;
        for (std::size_t s = 0; s < slots.size(); ++s) {
            const UnitRect& u = slots[s];
            const Rect r{c.screen.minX() + u.x * c.screen.width,
                         c.screen.minY() + u.y * c.screen.height, u.w * c.screen.width,
                         u.h * c.screen.height};
            if (r.contains(at)) return SlotRef{c.item.index, static_cast<int>(s)};
        }
    }
    return std::nullopt;
}

bool ShelfLayout::keepsOpen(Point at) const {
    if (frame.insetBy(-keepOpenSlop, -keepOpenSlop).contains(at)) return true;
    return withinInclusive(at, pill.minX() - pillBandSide, pill.maxX() + pillBandSide,
                           pill.minY() - pillBandAbove, pill.maxY() + pillBandBelow);
}

}  // namespace vistrel
