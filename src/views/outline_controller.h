#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "platform/geometry.h"
#include "platform/window_host.h"

namespace vistrel {

// Flashes a frame of four accent bars around a window or a slot, then fades it. The bars
// are made on first use and kept. Main thread only.
class OutlineController {
  public:
    static constexpr double barThickness = 3;
    static constexpr double fadeSeconds = 0.25;

    // Shows the outline around `rect` (accessibility coordinates) and fades it after
    // `seconds`, unless another flash or a hide comes first. A rectangle no more than twice
    // the bar thickness wide or high shows nothing.
    void flash(Rect rect, double seconds);
    // Orders all four bars out at once.
    void hide();

    // Counts flashes and hides: a pending fade acts only if it is still its own.
    std::uint64_t generation() const { return generation_; }
    // The bars, top, bottom, left and right; null before the first flash.
    const AgentWindow* bar(std::size_t index) const { return bars_[index].get(); }

  private:
    void makeBars();
    // Places the bars around a whole-point rectangle and shows them opaque.
    void showBars(Rect outlined);
    // Fades the bars out; once faded, orders them out unless a flash or a hide came since.
    void fadeOut(std::uint64_t generation);
    void orderOutBars();

    std::array<std::unique_ptr<AgentWindow>, 4> bars_;
    std::uint64_t generation_ = 0;
    // Delayed work holds this token weakly instead of the controller, so work that comes
    // due after the controller is gone finds nothing to do.
    std::shared_ptr<int> alive_ = std::make_shared<int>(0);
};

}  // namespace vistrel
