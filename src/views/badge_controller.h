#pragma once

#include <memory>
#include <vector>

#include "platform/geometry.h"
#include "platform/window_host.h"

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

  private:
    std::vector<std::unique_ptr<AgentWindow>> windows_;
    std::size_t shown_ = 0;
};

}  // namespace vistrel
