#pragma once

#include <functional>
#include <string>

#include "ui/kit/dfkit_view.h"

namespace vistrel {

// What the kit's buttons share: pressed while the mouse is down inside, hovered while the
// pointer is over it, the action on a mouse-up inside, and an accessibility button with a
// label whose press runs the action.
class DFKitControl : public DFKitView {
  public:
    DFKitControl(std::string accessibilityLabel, std::function<void()> action)
        : accessibilityLabel_(std::move(accessibilityLabel)), action_(std::move(action)) {}

    bool pressed() const { return pressed_; }
    bool hovered() const { return hovered_; }
    // Runs the action, as a click does.
    void perform() const;

    bool acceptsFirstMouse() const override { return true; }
    bool tracksHover() const override { return true; }
    void mouseDown(Point point) override;
    void mouseUp(Point point) override;
    void setHovered(bool hovered) override;
    std::optional<AccessibilityNode> accessibilityNode() override;

  private:
    std::string accessibilityLabel_;
    std::function<void()> action_;
    bool pressed_ = false;
    bool hovered_ = false;
};

}  // namespace vistrel
