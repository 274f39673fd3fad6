#pragma once

#include "platform/canvas.h"
#include "platform/geometry.h"
#include "platform/window_host.h"

namespace vistrel {

// Draws one badge: an accent disc with a white ring and the slot's number in the middle.
// Its space is the window's content, flipped (origin top-left).
class BadgeView {
  public:
    // The number to show; marks the view for redrawing.
    void configure(int number);
    int number() const { return number_; }

    // Makes the view the content of a window (nullptr detaches it).
    void attach(AgentWindow* window);
    void setNeedsDisplay();
    // Draws into a view of size `bounds`, origin at its top-left.
    void draw(Canvas& canvas, Size bounds) const;

  private:
    int number_ = 0;
    AgentWindow* window_ = nullptr;
};

}  // namespace vistrel
