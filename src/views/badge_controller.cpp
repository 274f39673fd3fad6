#include "views/badge_controller.h"

#include "views/layouts_ui.h"
#include "windows/screens.h"

namespace vistrel {

void BadgeController::show(int number, Point center) {
    if (shown_ == windows_.size()) {
        windows_.push_back(LayoutsUI::makeWindow(AgentWindowLevel::badge));
        views_.emplace_back();
        views_.back().attach(windows_.back().get());
    }
    AgentWindow& window = *windows_[shown_];
    const double half = side / 2;
    window.setFrame(Screens::toAppKit({center.x - half, center.y - half, side, side}), true);
    views_[shown_].configure(number);
    window.orderFrontRegardless();
    ++shown_;
}

void BadgeController::hideAll() {
    for (auto& window : windows_)
        window->orderOut();
    shown_ = 0;
}

}  // namespace vistrel
