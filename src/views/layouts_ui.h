#pragma once

#include <memory>

#include "platform/color.h"
#include "platform/geometry.h"
#include "platform/window_host.h"

namespace vistrel {

// What the Layouts feature's feedback windows (shelf, HUD, outline, badges) share.
struct LayoutsUI {
    // The feature's accent colour, #8B7BFF.
    static constexpr Color accent = Color::fromRGB(0x8B7BFF);

    // A display-only feedback window at `level`: made at once (not deferred), hidden,
    // ignoring the mouse, on every Space and over full-screen windows.
    static std::unique_ptr<AgentWindow> makeWindow(int level);
};

}  // namespace vistrel
