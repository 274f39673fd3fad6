#pragma once

#include <optional>
#include <vector>

#include "base/overlay_button.h"
#include "platform/canvas.h"
#include "platform/window_host.h"
#include "views/theme.h"

namespace vistrel {

// Draws the strip of round buttons into the overlay window. Its space is the window's
// content, not flipped: origin at the bottom-left, y up, as an AppKit view's.
class OverlayView {
  public:
    struct Item {
        OverlayButton button = OverlayButton::close;
        Rect rect;  // in the view's bottom-left coordinates
        Theme::Look look;

        friend bool operator==(const Item&, const Item&) = default;
    };

    // Replaces the items and marks the view for redrawing.
    void configure(std::vector<Item> items);
    const std::vector<Item>& items() const { return items_; }

    // The button drawn darker; setting it marks the view for redrawing.
    void setHovered(std::optional<OverlayButton> hovered);
    std::optional<OverlayButton> hovered() const { return hovered_; }

    // Makes the view the content of a window (nullptr detaches it); the window gets the
    // view's current drawing at once.
    void attach(AgentWindow* window);
    // Draws the view anew and hands the drawing to its window, if it has one.
    void setNeedsDisplay();

    // Every item in order, only the hovered button's item drawn hovered.
    void draw(Canvas& canvas) const;

    // One button into its square `rect`: the face, the ring and the button's glyph.
    static void drawButton(Canvas& canvas, Rect rect, const Theme::Look& look, OverlayButton kind,
                           bool hovered);
    // The stroke width of the glyph on a button `width` points wide.
    static double glyphLineWidth(double width);

  private:
    std::vector<Item> items_;
    std::optional<OverlayButton> hovered_;
    AgentWindow* window_ = nullptr;
};

}  // namespace vistrel
