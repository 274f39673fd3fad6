#include "views/outline_controller.h"

#include "platform/display_list.h"
#include "platform/platform.h"
#include "views/layouts_ui.h"
#include "windows/screens.h"

namespace vistrel {

namespace {

constexpr double thickness = OutlineController::barThickness;
// Bars of a rectangle this narrow or low would overlap: such an outline shows nothing.
constexpr double smallestOutlinedSide = 2 * thickness;

// Top, bottom, left and right, in accessibility coordinates. The side bars fit between the
// top and bottom ones, so the corners are not painted twice.
std::array<Rect, 4> barsAround(Rect r) {
    const double sideHeight = r.height - 2 * thickness;
    return {Rect{r.minX(), r.minY(), r.width, thickness},
            Rect{r.minX(), r.maxY() - thickness, r.width, thickness},
            Rect{r.minX(), r.minY() + thickness, thickness, sideHeight},
            Rect{r.maxX() - thickness, r.minY() + thickness, thickness, sideHeight}};
}

// A window has no background colour of its own: a bar is its content filled with the accent.
std::shared_ptr<const DisplayList> solidAccent(Size size) {
    RecordingCanvas canvas;
    canvas.fill(Path::rect({0, 0, size.width, size.height}), LayoutsUI::accent);
    return canvas.finish();
}

}  // namespace

void OutlineController::flash(Rect rect, double seconds) {
    const std::uint64_t generation = ++generation_;
    makeBars();

    const Rect outlined = rect.integral();
    if (outlined.width <= smallestOutlinedSide || outlined.height <= smallestOutlinedSide) {
        // The outline of an earlier flash would otherwise stay: its fade is no longer its own.
        orderOutBars();
        return;
    }

    showBars(outlined);
    std::weak_ptr<int> alive = alive_;
    platform().executor.main().after(seconds, [this, alive, generation] {
        if (alive.lock() && generation == generation_) fadeOut(generation);
    });
}

void OutlineController::showBars(Rect outlined) {
    const auto frames = barsAround(outlined);
    for (std::size_t i = 0; i < bars_.size(); ++i) {
        AgentWindow& bar = *bars_[i];
        bar.setFrame(Screens::toAppKit(frames[i]), true);
        bar.setContent(solidAccent(frames[i].size()));
        bar.setAlpha(1);
        bar.orderFrontRegardless();
    }
}

void OutlineController::hide() {
    ++generation_;
    orderOutBars();
}

void OutlineController::makeBars() {
    if (bars_.front()) return;
    for (auto& bar : bars_)
        bar = LayoutsUI::makeWindow(AgentWindowLevel::outline);
}

// A flash that arrives while the bars fade takes them over: the fade's end leaves them shown.
void OutlineController::fadeOut(std::uint64_t generation) {
    std::weak_ptr<int> alive = alive_;
    for (auto& bar : bars_) {
        AgentWindow* window = bar.get();
        window->fade(0, fadeSeconds, [this, alive, generation, window] {
            if (alive.lock() && generation == generation_) window->orderOut();
        });
    }
}

void OutlineController::orderOutBars() {
    for (auto& bar : bars_) {
        if (bar) bar->orderOut();
    }
}

}  // namespace vistrel
