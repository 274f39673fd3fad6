#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/native_menu.h"

namespace vistrel {

// A native menu the agent popped up on the simulated screen.
struct SimOpenMenu {
    std::vector<NativeMenuItem> items;
    KeyPanel* panel = nullptr;
    Point point;  // in the panel's content, flipped
};

// The simulated menus: a popped-up menu stays open until the test chooses an item or
// dismisses it, so its picture can be taken.
class SimNativeMenus : public NativeMenus {
  public:
    void popUp(std::vector<NativeMenuItem> items, KeyPanel& panel, Point point) override;

    const std::optional<SimOpenMenu>& openMenu() const { return open_; }
    // Chooses the item with the title: closes the menu and runs its handler; false when the
    // open menu has no such item.
    bool choose(std::string_view title);
    void dismiss() { open_.reset(); }
    int popUps() const { return popUps_; }
    // When set, menus do not appear.
    bool failPopUps = false;

  private:
    std::optional<SimOpenMenu> open_;
    int popUps_ = 0;
};

}  // namespace vistrel
