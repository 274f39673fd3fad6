#include "views/shelf_cell_painter.h"

#include <algorithm>

#include "views/app_look.h"
#include "views/layouts_ui.h"
#include "views/shelf_glyphs.h"
#include "views/shelf_style.h"
#include "views/shelf_text.h"

namespace vistrel {

namespace {

using Item = ShelfLayout::Item;
using Kind = ShelfLayout::Item::Kind;

constexpr std::string_view saveName = "Save current";
// Digits stand about this share of the font size above the baseline; the Command symbol
// is centred on them and drawn about as tall as they are.
constexpr double digitHeightShare = 0.7;
constexpr double commandSideShare = 0.72;
constexpr double commandStrokeShare = 0.1;
constexpr double commandGap = 1.5;

const StrokeStyle hairline{ShelfStyle::screenEdgeWidth, LineCap::butt, LineJoin::miter};

// A stroke of width `width` drawn inside `rect`'s rounded edge rather than across it.
Path insideEdge(Rect rect, double radius, double width) {
    return Path::roundedRect(rect.insetBy(width / 2, width / 2), radius - width / 2);
}

Rect content(Rect screen) {
    return screen.insetBy(ShelfStyle::screenInset, ShelfStyle::screenInset);
}

std::optional<std::string> pickedApp(const ShelfState& state, int slot) {
    if (slot < 0 || slot >= static_cast<int>(state.composeApps.size())) return std::nullopt;
    return state.composeApps[static_cast<std::size_t>(slot)];
}

// The slot to fill next while composing: the first without a window.
int nextSlot(const ShelfState& state, int slots) {
    for (int s = 0; s < slots; ++s) {
        if (!pickedApp(state, s)) return s;
    }
    return slots;
}

}  // namespace

Color ShelfCellPainter::screenBase(bool hovered, bool selected) {
    if (selected) return hovered ? ShelfStyle::screenSelectedHovered : ShelfStyle::screenSelected;
    return hovered ? ShelfStyle::screenHovered : ShelfStyle::screenIdle;
}

std::string ShelfCellPainter::name(const Item& item, const ShelfState& state) {
    switch (item.kind) {
        case Kind::saved:
            if (item.index < 0 || item.index >= static_cast<int>(state.saved.size())) return {};
            return state.saved[static_cast<std::size_t>(item.index)].name;
        case Kind::layoutTemplate:
            if (item.index < 0 || item.index >= static_cast<int>(state.templates.size())) return {};
            return state.templates[static_cast<std::size_t>(item.index)].name;
        case Kind::save:
            return std::string(saveName);
    }
    return {};
}

Rect ShelfCellPainter::miniature(const UnitRect& unit, Rect content) {
    const Rect onScreen = Rect{unit.x, unit.y, unit.w, unit.h}.intersection({0, 0, 1, 1});
    if (onScreen.isEmpty()) return {};
    const double halfGap = ShelfStyle::slotGap / 2;
    return Rect{content.minX() + onScreen.x * content.width,
                content.minY() + onScreen.y * content.height, onScreen.width * content.width,
                onScreen.height * content.height}
        .insetBy(halfGap, halfGap);
}

bool ShelfCellPainter::hovered(const Item& item) const {
    return state_.hovered == item;
}

bool ShelfCellPainter::selected(const Item& item) const {
    return item.kind == Kind::layoutTemplate && state_.composeTemplate == item.index;
}

bool ShelfCellPainter::deletable(const Item& item) const {
    return item.kind == Kind::saved && state_.optionHeld;
}

void ShelfCellPainter::paint(const ShelfLayout::Cell& cell) const {
    if (deletable(cell.item)) {
        paintDeletableScreen(cell.screen, hovered(cell.item));
    } else {
        paintScreen(cell.screen, hovered(cell.item), selected(cell.item));
    }
    switch (cell.item.kind) {
        case Kind::saved:
            paintSaved(cell);
            break;
        case Kind::save:
            paintSave(cell);
            break;
        case Kind::layoutTemplate:
            paintTemplate(cell);
            break;
    }
    paintLabel(cell);
}

void ShelfCellPainter::paintScreen(Rect screen, bool hovered, bool selected) const {
    canvas_.fill(Path::roundedRect(screen, ShelfStyle::screenRadius),
                 screenBase(hovered, selected));
    if (selected) {
        canvas_.stroke(insideEdge(screen, ShelfStyle::screenRadius, ShelfStyle::selectedRingWidth),
                       LayoutsUI::accent,
                       {ShelfStyle::selectedRingWidth, LineCap::butt, LineJoin::miter});
        return;
    }
    canvas_.stroke(insideEdge(screen, ShelfStyle::screenRadius, ShelfStyle::screenEdgeWidth),
                   hovered ? ShelfStyle::screenEdgeHovered : ShelfStyle::screenEdge, hairline);
}

void ShelfCellPainter::paintSaved(const ShelfLayout::Cell& cell) const {
    const auto index = static_cast<std::size_t>(cell.item.index);
    if (cell.item.index >= 0 && index < state_.saved.size()) {
        // Front-most first: drawn back to front so the front window lies on top.
        const auto& windows = state_.saved[index].windows;
        canvas_.save();
        canvas_.clip(Path::roundedRect(cell.screen, ShelfStyle::screenRadius));
        for (auto it = windows.rbegin(); it != windows.rend(); ++it) {
            const Rect rect = miniature(it->rect, content(cell.screen));
            if (!rect.isEmpty()) paintWindow(rect, it->bundleID);
        }
        canvas_.restore();
    }
    if (deletable(cell.item)) paintDeleteBadge(cell.screen);
}

void ShelfCellPainter::paintWindow(Rect rect, const std::string& bundleID) const {
    const Color color = AppLook::color(bundleID);
    const Path shape = Path::roundedRect(rect, ShelfStyle::windowRadius);
    canvas_.fill(shape, color.withAlpha(ShelfStyle::windowFillAlpha));
    canvas_.stroke(insideEdge(rect, ShelfStyle::windowRadius, ShelfStyle::windowEdgeWidth),
                   color.blended(ShelfStyle::windowEdgeLightening, Color::white())
                       .withAlpha(ShelfStyle::windowEdgeAlpha),
                   hairline);
    const double room = std::min(rect.width, rect.height) - 2 * ShelfStyle::iconMargin;
    const double side = std::min(ShelfStyle::iconLargest, room);
    if (side < ShelfStyle::iconSmallest) return;
    if (const auto icon = AppLook::icon(bundleID)) {
        canvas_.drawImage(icon, {rect.midX() - side / 2, rect.midY() - side / 2, side, side});
    }
}

// Option-click deletes a saved layout: its miniature turns red under the windows.
void ShelfCellPainter::paintDeletableScreen(Rect screen, bool hovered) const {
    const Color red = ShelfStyle::deleteRed;
    canvas_.fill(
        Path::roundedRect(screen, ShelfStyle::screenRadius),
        red.withAlpha(hovered ? ShelfStyle::deleteBaseHoveredAlpha : ShelfStyle::deleteBaseAlpha));
    canvas_.stroke(insideEdge(screen, ShelfStyle::screenRadius, ShelfStyle::selectedRingWidth), red,
                   {ShelfStyle::selectedRingWidth, LineCap::butt, LineJoin::miter});
}

// A red disc with a white × on the miniature's top-left corner, as on a deletable icon.
void ShelfCellPainter::paintDeleteBadge(Rect screen) const {
    const double d = ShelfStyle::deleteBadgeDiameter;
    const Point centre{screen.minX() + ShelfStyle::screenInset,
                       screen.minY() + ShelfStyle::screenInset};
    const Rect badge{centre.x - d / 2, centre.y - d / 2, d, d};
    canvas_.fill(Path::oval(badge), ShelfStyle::deleteRed);
    canvas_.stroke(Path::oval(badge), ShelfStyle::deleteBadgeEdge,
                   {ShelfStyle::deleteBadgeEdgeWidth, LineCap::butt, LineJoin::miter});
    canvas_.stroke(ShelfGlyphs::cross(centre, ShelfStyle::deleteCrossArm), Color::white(),
                   {ShelfStyle::deleteCrossWidth, LineCap::round, LineJoin::round});
}

void ShelfCellPainter::paintSave(const ShelfLayout::Cell& cell) const {
    canvas_.stroke(ShelfGlyphs::plus(cell.screen.mid(), ShelfStyle::plusArm), ShelfStyle::plus,
                   {ShelfStyle::plusWidth, LineCap::round, LineJoin::round});
}

void ShelfCellPainter::paintTemplate(const ShelfLayout::Cell& cell) const {
    const int index = cell.item.index;
    if (index < 0 || index >= static_cast<int>(state_.templates.size())) return;
    const auto& slots = state_.templates[static_cast<std::size_t>(index)].slots;
    const int count = static_cast<int>(slots.size());
    // Only the template being composed numbers its slots and points at the next one.
    const std::optional<int> next =
        selected(cell.item) ? std::optional<int>(nextSlot(state_, count)) : std::nullopt;
    for (int s = 0; s < count; ++s) {
        const Rect rect = miniature(slots[static_cast<std::size_t>(s)], content(cell.screen));
        if (!rect.isEmpty()) paintSlot(rect, SlotRef{index, s}, next);
    }
}

void ShelfCellPainter::paintSlot(Rect rect, SlotRef slot, std::optional<int> next) const {
    if (state_.dropSlot == slot) {
        canvas_.fill(Path::roundedRect(rect, ShelfStyle::windowRadius),
                     LayoutsUI::accent.withAlpha(ShelfStyle::dropFillAlpha));
        return;
    }
    if (!next) {
        paintEmptySlot(rect, std::nullopt, false);
        return;
    }
    if (const auto app = pickedApp(state_, slot.slot)) {
        paintWindow(rect, *app);
        return;
    }
    paintEmptySlot(rect, slot.slot + 1, slot.slot == *next);
}

void ShelfCellPainter::paintEmptySlot(Rect rect, std::optional<int> number, bool next) const {
    canvas_.fill(Path::roundedRect(rect, ShelfStyle::windowRadius), ShelfStyle::slotFill);
    const Color edge = next ? LayoutsUI::accent : ShelfStyle::slotEdge;
    canvas_.stroke(insideEdge(rect, ShelfStyle::windowRadius, ShelfStyle::windowEdgeWidth), edge,
                   hairline);
    if (!number) return;
    const TextRun run{std::to_string(*number), ShelfStyle::slotNumberFont(),
                      next ? Color::white() : ShelfStyle::slotNumber};
    ShelfText::drawCentred(canvas_, run, rect.midX(), ShelfText::centredBaseline(run, rect.midY()));
}

void ShelfCellPainter::paintLabel(const ShelfLayout::Cell& cell) const {
    const bool lit = hovered(cell.item) || selected(cell.item);
    if (cell.item.kind == Kind::saved && !lit) {
        paintShortcut(cell);
        return;
    }
    const double room = cell.rect.width + (lit ? 2 * ShelfStyle::labelOverhang : 0);
    const std::string text = name(cell.item, state_);
    if (text.empty()) return;
    const TextRun run = ShelfText::fitted(
        {text, ShelfStyle::labelFont(), lit ? ShelfStyle::labelHovered : ShelfStyle::labelIdle},
        room);
    ShelfText::drawCentred(canvas_, run, cell.rect.midX(),
                           cell.screen.maxY() + ShelfStyle::labelBaseline);
}

// "⌘" and the digit of the cell's Command-number key; the symbol is a path so that it looks
// the same in every font.
void ShelfCellPainter::paintShortcut(const ShelfLayout::Cell& cell) const {
    const TextRun digit{std::to_string(cell.item.index + 1), ShelfStyle::labelFont(),
                        ShelfStyle::labelIdle};
    const double size = ShelfStyle::labelSize;
    const double side = commandSideShare * size;
    const double total = side + commandGap + ShelfText::width(digit);
    const double left = cell.rect.midX() - total / 2;
    const double baseline = cell.screen.maxY() + ShelfStyle::labelBaseline;
    const Point centre{left + side / 2, baseline - digitHeightShare * size / 2};
    canvas_.stroke(ShelfGlyphs::command(centre, side), ShelfStyle::labelIdle,
                   {commandStrokeShare * size, LineCap::round, LineJoin::round});
    canvas_.drawText(digit, {left + side + commandGap, baseline});
}

}  // namespace vistrel
