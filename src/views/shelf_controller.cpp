#include "views/shelf_controller.h"

#include <algorithm>

#include "base/log.h"
#include "views/layouts_ui.h"
#include "windows/screens.h"

namespace vistrel {

namespace {

// The glass's corners: the shelf's radius, or a capsule's for the folded pill, which is
// lower than twice that radius.
double glassRadius(Rect frame) {
    return std::min(ShelfController::cornerRadius, frame.height / 2);
}

}  // namespace

void ShelfController::show(const ShelfLayout& layout, const ShelfState& state) {
    const Rect frame = state.folded ? layout.pill : layout.frame;
    if (!window_) makeWindow();
    present(layout, state, frame);
    // A window left behind on another Space cannot be brought back by ordering it front:
    // AppKit keeps it there. A new window appears on the active one.
    if (!window_->isOnActiveSpace()) {
        Log::info("layouts shelf is not on the active space, recreating it");
        window_->orderOut();
        makeWindow();
        present(layout, state, frame);
    }
    shownFrame_ = frame;
}

void ShelfController::hide() {
    if (window_ && window_->isVisible()) window_->orderOut();
}

void ShelfController::makeWindow() {
    view_.attach(nullptr);
    window_ = LayoutsUI::makeWindow(AgentWindowLevel::shelf);
    glassRadius_ = cornerRadius;
    window_->setGlass(glassRadius_);
    view_.attach(window_.get());
}

void ShelfController::present(const ShelfLayout& layout, const ShelfState& state, Rect frame) {
    const double radius = glassRadius(frame);
    if (radius != glassRadius_) {
        glassRadius_ = radius;
        window_->setGlass(radius);
    }
    view_.configure(layout, state, frame.origin());
    window_->setFrame(Screens::toAppKit(frame), true);
    window_->orderFrontRegardless();
}

}  // namespace vistrel
