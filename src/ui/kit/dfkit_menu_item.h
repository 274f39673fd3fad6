#pragma once

#include <functional>
#include <string>

#include "platform/native_menu.h"

namespace vistrel {

// A native menu item whose target is itself and whose action (`run`) calls the stored
// handler.
struct DFMenuItem {
    static NativeMenuItem make(std::string title, std::function<void()> handler,
                               MenuItemState state = MenuItemState::off, std::string toolTip = {}) {
        return {std::move(title), state, std::move(toolTip), std::move(handler), false};
    }
};

}  // namespace vistrel
