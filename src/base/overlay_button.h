#pragma once

#include <array>
#include <optional>

#include "base/hotkey.h"

namespace vistrel {

// The round buttons drawn over a hovered thumbnail, in strip order (raw values 0 to 2).
enum class OverlayButton : int { close = 0, minimize, maximize };

inline constexpr std::array<OverlayButton, 3> allOverlayButtons = {
    OverlayButton::close, OverlayButton::minimize, OverlayButton::maximize};

// The shortcut a click on the button performs.
constexpr Hotkey hotkey(OverlayButton button) {
    switch (button) {
        case OverlayButton::close:
            return Hotkey::close;
        case OverlayButton::minimize:
            return Hotkey::minimize;
        case OverlayButton::maximize:
            return Hotkey::maximize;
    }
    return Hotkey::close;
}

constexpr std::optional<OverlayButton> overlayButtonFromRaw(int raw) {
    if (raw < 0 || raw > 2) return std::nullopt;
    return static_cast<OverlayButton>(raw);
}

}  // namespace vistrel
