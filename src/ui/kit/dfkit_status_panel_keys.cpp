// The status panel's keyboard: the arrow keys move the highlight, as in a menu.
#include <algorithm>
#include <iterator>

#include "base/hotkey.h"
#include "ui/kit/dfkit_control.h"
#include "ui/kit/dfkit_scroll_view.h"
#include "ui/kit/dfkit_status_panel.h"

namespace vistrel {

namespace {

// The views the highlight stops at, in the order they are drawn: those that take a click.
void collectControls(const DFKitView& view, std::vector<DFKitView*>& controls) {
    for (DFKitView* child : view.subviews()) {
        if (child->tracksHover()) controls.push_back(child);
        collectControls(*child, controls);
    }
}

// Scrolls every scrolling column the view stands in, the least that shows it whole.
void reveal(const DFKitView& view) {
    for (DFKitView* above = view.superview(); above; above = above->superview()) {
        if (auto* column = dynamic_cast<DFKitScrollView*>(above)) column->scrollToShow(view);
    }
}

}  // namespace

bool DFKitStatusPanel::keyDown(std::int64_t keyCode, std::uint64_t modifierFlags) {
    if (!isVisible() || (modifierFlags & ModifierFlag::relevant) != 0) return false;
    switch (keyCode) {
        case KeyCode::downArrow:
            moveHighlight(1);
            return true;
        case KeyCode::upArrow:
            moveHighlight(-1);
            return true;
        case KeyCode::returnKey:
        case KeyCode::keypadEnter:
        case KeyCode::space:
            if (auto* control = dynamic_cast<DFKitControl*>(hovered_)) {
                control->perform();
                return true;
            }
            return false;
        default:
            return false;
    }
}

// From nothing, down starts at the first view and up at the last; the highlight stops at
// either end, as a menu's does.
void DFKitStatusPanel::moveHighlight(int step) {
    std::vector<DFKitView*> controls;
    collectControls(content_, controls);
    if (controls.empty()) return;
    const auto at = std::find(controls.begin(), controls.end(), hovered_);
    std::ptrdiff_t next = step > 0 ? 0 : std::ssize(controls) - 1;
    if (at != controls.end())
        next = std::clamp<std::ptrdiff_t>(std::distance(controls.begin(), at) + step, 0,
                                          std::ssize(controls) - 1);
    DFKitView* chosen = controls[static_cast<std::size_t>(next)];
    reveal(*chosen);
    highlight(chosen);
}

}  // namespace vistrel
