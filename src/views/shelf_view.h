#pragma once

#include <optional>

#include "layouts/shelf_layout.h"
#include "layouts/shelf_state.h"
#include "platform/canvas.h"
#include "platform/window_host.h"

namespace vistrel {

// Draws the shelf: the saved layouts' miniature screens with each application's windows in
// its colour, the "Save current" cell, the divider, the templates with their slots, the
// hovered cell's name, the shortcuts, and, folded, the pill with "Layouts". Its space is the
// window's content, flipped (origin top-left); cells are placed relative to `origin`, the
// top-left corner of the window in the layout's global coordinates.
class ShelfView {
  public:
    void configure(const ShelfLayout& layout, const ShelfState& state, Point origin);
    const ShelfLayout& layout() const { return layout_; }
    const ShelfState& state() const { return state_; }

    void attach(AgentWindow* window);
    void setNeedsDisplay();
    void draw(Canvas& canvas) const;

  private:
    void drawDivider(Canvas& canvas) const;
    void drawPill(Canvas& canvas) const;

    ShelfLayout layout_;
    ShelfState state_;
    Point origin_;
    AgentWindow* window_ = nullptr;
};

}  // namespace vistrel
