#pragma once

#include <optional>
#include <string>

#include "layouts/unit_rect.h"
#include "platform/canvas.h"
#include "platform/geometry.h"
#include "platform/window_host.h"

namespace vistrel {

// Draws the HUD's capsule: an optional miniature screen showing a unit rectangle, then the
// message in white. Its space is the window's content, flipped (origin top-left).
class HUDView {
  public:
    // The message and miniature to show; marks the view for redrawing.
    void configure(std::string message, std::optional<UnitRect> unit);
    const std::string& message() const { return message_; }
    const std::optional<UnitRect>& unit() const { return unit_; }

    // The size the capsule needs for a message and an optional miniature, in whole points.
    static Size measure(const std::string& message, bool withUnit);
    // The message's font.
    static Font font();

    void attach(AgentWindow* window);
    void setNeedsDisplay();
    // Draws into a view of size `bounds`, origin at its top-left.
    void draw(Canvas& canvas, Size bounds) const;

  private:
    std::string message_;
    std::optional<UnitRect> unit_;
    AgentWindow* window_ = nullptr;
};

}  // namespace vistrel
