#pragma once

#include <optional>
#include <string>

#include "layouts/shelf_layout.h"
#include "layouts/shelf_state.h"
#include "layouts/slot_ref.h"
#include "layouts/unit_rect.h"
#include "platform/canvas.h"

namespace vistrel {

// Draws one cell of the shelf at a time, in the shelf view's flipped space: the miniature
// screen (a saved layout's windows in their applications' colours, the save cell's plus, a
// template's slots) and the label under it (the hovered cell's name; otherwise a saved
// layout's shortcut, "Save current" or the template's name, dimmed).
class ShelfCellPainter {
  public:
    ShelfCellPainter(Canvas& canvas, const ShelfState& state) : canvas_(canvas), state_(state) {}

    // One cell, its rectangles already in the view's space.
    void paint(const ShelfLayout::Cell& cell) const;

    // The base of a cell's miniature screen: lighter under the pointer, accent-tinted while
    // its template is being composed.
    static Color screenBase(bool hovered, bool selected);
    // What a cell is called: the saved layout's name, "Save current" or the template's name;
    // empty for a saved or template index the state does not hold.
    static std::string name(const ShelfLayout::Item& item, const ShelfState& state);
    // Where a unit rectangle of a screen goes in a miniature's `content` area, clipped to it
    // and drawn a little inside its share so that neighbours stay apart; empty when nothing
    // of it lies on the screen.
    static Rect miniature(const UnitRect& unit, Rect content);

  private:
    bool hovered(const ShelfLayout::Item& item) const;
    bool selected(const ShelfLayout::Item& item) const;
    bool deletable(const ShelfLayout::Item& item) const;

    void paintScreen(Rect screen, bool hovered, bool selected) const;
    void paintSaved(const ShelfLayout::Cell& cell) const;
    void paintSave(const ShelfLayout::Cell& cell) const;
    void paintTemplate(const ShelfLayout::Cell& cell) const;
    // One slot of a template; `next` is the slot to fill next while composing that
    // template, none otherwise.
    void paintSlot(Rect rect, SlotRef slot, std::optional<int> next) const;
    void paintWindow(Rect rect, const std::string& bundleID) const;
    void paintEmptySlot(Rect rect, std::optional<int> number, bool next) const;
    void paintDeletableScreen(Rect screen, bool hovered) const;
    void paintDeleteBadge(Rect screen) const;
    void paintLabel(const ShelfLayout::Cell& cell) const;
    void paintShortcut(const ShelfLayout::Cell& cell) const;

    Canvas& canvas_;
    const ShelfState& state_;
};

}  // namespace vistrel
