#include "views/hud_controller.h"

#include <cmath>

#include "platform/platform.h"
#include "views/layouts_ui.h"
#include "windows/screens.h"

namespace vistrel {

namespace {

// A confirmation hiding this much late goes unnoticed; the system may coalesce wake-ups.
constexpr double hideTolerance = 0.05;

// The capsule's frame centred on `center`, on whole points so that the text stays sharp.
Rect centred(Size size, Point center) {
    return Rect::of({std::round(center.x - size.width / 2), std::round(center.y - size.height / 2)},
                    size);
}

}  // namespace

HUDController::HUDController(int level) : level_(level) {}

AgentWindow& HUDController::ensureWindow() {
    if (!window_) {
        window_ = LayoutsUI::makeWindow(level_);
        view_.attach(window_.get());
    }
    return *window_;
}

void HUDController::present(const std::string& message, std::optional<UnitRect> unit,
                            Point center) {
    hideWork_.reset();
    const Size size = HUDView::measure(message, unit.has_value());
    AgentWindow& hud = ensureWindow();
    hud.setFrame(Screens::toAppKit(centred(size, center)), true);
    view_.configure(message, unit);
    hud.orderFrontRegardless();
}

void HUDController::flash(const std::string& message, std::optional<UnitRect> unit, Point center,
                          double seconds) {
    present(message, unit, center);
    // The timer belongs to this controller: freeing the controller cancels it.
    hideWork_ = platform().executor.oneShot(seconds, hideTolerance, [this] { hide(); });
}

void HUDController::hide() {
    hideWork_.reset();
    if (isVisible()) window_->orderOut();
}

}  // namespace vistrel
