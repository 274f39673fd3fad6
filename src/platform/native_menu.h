#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/geometry.h"

namespace vistrel {

class KeyPanel;

// NSControl.StateValue of a menu item.
enum class MenuItemState { off, on, mixed };

// One NSMenuItem whose target is itself and whose action runs the handler, or a separator.
struct NativeMenuItem {
    std::string title;
    MenuItemState state = MenuItemState::off;
    std::string toolTip;  // none when empty
    std::function<void()> handler;
    bool separator = false;

    static NativeMenuItem separatorItem() { return {{}, MenuItemState::off, {}, {}, true}; }
};

// NSMenu. Main thread only.
class NativeMenus {
  public:
    virtual ~NativeMenus() = default;
    // popUp(positioning: nil, at: point, in: the panel's content view), the point in the
    // content's flipped coordinates. Returns when the menu closes; the chosen item's handler
    // has run by then.
    virtual void popUp(std::vector<NativeMenuItem> items, KeyPanel& panel, Point point) = 0;
};

}  // namespace vistrel
