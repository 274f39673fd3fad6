#pragma once

#include <memory>
#include <optional>
#include <string>

#include "layouts/unit_rect.h"
#include "platform/executor.h"
#include "platform/geometry.h"
#include "platform/window_host.h"
#include "views/hud_view.h"

namespace vistrel {

// A heads-up message in a capsule over Mission Control: a short confirmation that hides
// itself (flash), or a caption that stays until hidden (present). The window is made on
// first use and kept. Main thread only.
class HUDController {
  public:
    explicit HUDController(int level = AgentWindowLevel::hud);

    // Shows the message, with a miniature of `unit` when given, centred on `center`
    // (accessibility coordinates). Cancels a pending hide.
    void present(const std::string& message, std::optional<UnitRect> unit, Point center);
    // Presents, then hides after `seconds`.
    void flash(const std::string& message, std::optional<UnitRect> unit, Point center,
               double seconds);
    // Cancels a pending hide and orders the window out if it is visible.
    void hide();

    bool isVisible() const { return window_ && window_->isVisible(); }
    bool hidePending() const { return hideWork_ != nullptr; }
    const HUDView& view() const { return view_; }
    // Null until the first message.
    const AgentWindow* window() const { return window_.get(); }

  private:
    // The window, made on first use. Named apart from window() so that the public accessor
    // stays callable on a non-const controller.
    AgentWindow& ensureWindow();

    HUDView view_;
    std::unique_ptr<AgentWindow> window_;
    std::unique_ptr<Timer> hideWork_;
    int level_;
};

}  // namespace vistrel
