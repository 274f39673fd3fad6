#pragma once

#include <memory>
#include <vector>

#include "platform/geometry.h"
#include "platform/window_host.h"
#include "views/badge_view.h"

namespace vistrel {

// Numbered discs over the thumbnails of the windows picked into a layout's slots. Badge
// windows are made as needed and reused. Main thread only.
class BadgeController {
  public:
    static constexpr double side = 34;

    // Shows one more badge with `number`, centred on `center` (accessibility coordinates).
    void show(int number, Point center);
    // Orders every badge out; the next show starts again from the first window.
    void hideAll();

    // The badges shown now.
    std::size_t shown() const { return shown_; }
    const std::vector<std::unique_ptr<AgentWindow>>& windows() const { return windows_; }
    // The view drawing the badge in windows()[index].
    const BadgeView& view(std::size_t index) const { return views_.at(index); }

  private:
    std::vector<std::unique_ptr<AgentWindow>> windows_;
    // One per window, in the same order; each draws into its window.
    std::vector<BadgeView> views_;
    std::size_t shown_ = 0;
};

}  // namespace vistrel
