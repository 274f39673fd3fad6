#pragma once

#include <memory>
#include <optional>

#include "layouts/shelf_layout.h"
#include "layouts/shelf_state.h"
#include "platform/window_host.h"
#include "views/shelf_view.h"

namespace vistrel {

// The shelf's window along the bottom of the screen: frosted glass with the ShelfView on
// it. Unfolded it covers the layout's frame; folded only its pill. Made on first show and
// kept; made again when it was left behind on another Space. Main thread only.
class ShelfController {
  public:
    static constexpr double cornerRadius = 18;

    // Shows or updates the shelf.
    void show(const ShelfLayout& layout, const ShelfState& state);
    void hide();

    bool isVisible() const { return window_ && window_->isVisible(); }
    // The frame last shown, accessibility coordinates; none before the first show.
    const std::optional<Rect>& shownFrame() const { return shownFrame_; }
    const ShelfView& view() const { return view_; }
    const AgentWindow* window() const { return window_.get(); }

  private:
    // Makes the window (replacing any previous one) with glass at the shelf's radius.
    void makeWindow();
    // Draws the state into the window, puts it at `frame` (accessibility coordinates) and
    // orders it front.
    void present(const ShelfLayout& layout, const ShelfState& state, Rect frame);

    ShelfView view_;
    std::unique_ptr<AgentWindow> window_;
    std::optional<Rect> shownFrame_;
    double glassRadius_ = cornerRadius;  // the radius the window's glass has
};

}  // namespace vistrel
