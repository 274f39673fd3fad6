#include "ui/kit/dfkit_control.h"

namespace vistrel {

void DFKitControl::perform() const {
    // A copy: the action may close the panel and so release this view's rows.
    if (const std::function<void()> action = action_) action();
}

void DFKitControl::mouseDown(Point point) {
    pressed_ = bounds().contains(point);
    setNeedsDisplay();
}

void DFKitControl::mouseUp(Point point) {
    pressed_ = false;
    setNeedsDisplay();
    if (bounds().contains(point)) perform();
}

void DFKitControl::setHovered(bool hovered) {
    if (hovered == hovered_) return;
    hovered_ = hovered;
    setNeedsDisplay();
}

std::optional<AccessibilityNode> DFKitControl::accessibilityNode() {
    return AccessibilityNode{std::string(AccessibilityRole::button),
                             accessibilityLabel_,
                             std::nullopt,
                             bounds(),
                             [this] { perform(); },
                             {}};
}

}  // namespace vistrel
