#pragma once

#include <memory>
#include <optional>

#include "platform/window_host.h"
#include "tracking/overlay_layout.h"
#include "views/overlay_view.h"

namespace vistrel {

// Owns the borderless, click-through window that floats the button strip above Mission
// Control. The window never takes a click: the event tap hit-tests the strip's layout.
// Main thread only.
class OverlayController {
  public:
    // Makes the window (hidden) through the installed platform's window host.
    OverlayController();

    // Shows the strip for a layout (rectangles in accessibility coordinates). Showing the
    // layout already on screen, in a visible window on the active Space, does nothing.
    void show(const OverlayLayout& layout);
    // Forgets the shown layout and orders the window out; the window is kept for reuse.
    void hide();

    // The button under the pointer; a new value redraws the strip, the same value does nothing.
    std::optional<OverlayButton> hovered() const { return hovered_; }
    void setHovered(std::optional<OverlayButton> hovered);

    const std::optional<OverlayLayout>& shown() const { return shown_; }
    const OverlayView& view() const { return view_; }
    const AgentWindow& window() const { return *window_; }

  private:
    static std::unique_ptr<AgentWindow> makeWindow();
    void recreateWindow(Rect frame);

    std::optional<OverlayButton> hovered_;
    std::unique_ptr<AgentWindow> window_;
    OverlayView view_;
    std::optional<OverlayLayout> shown_;
};

}  // namespace vistrel
