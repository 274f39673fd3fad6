#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "base/hotkey.h"

namespace vistrel {

// How a window shortcut is named to the user and which keys it is shown with, the same in
// the status panel and in the Settings app.
struct ShortcutText {
    std::string_view title;
    std::string_view keys;

    static const ShortcutText& of(Hotkey hotkey);
};

// In the order of the Hotkey enumeration.
inline constexpr std::array<ShortcutText, allHotkeys.size()> shortcutTexts = {{
    {"Close window", "⌘W"},
    {"Close all windows of the app", "⌥⌘W"},
    {"Minimize window", "⌘M"},
    {"Full screen / maximize window", "⌘F"},
    {"Hide app", "⌘H"},
    {"Hide other apps", "⌥⌘H"},
    {"Force-quit app", "⌘Q"},
}};

inline const ShortcutText& ShortcutText::of(Hotkey hotkey) {
    return shortcutTexts.at(static_cast<std::size_t>(hotkey));
}

}  // namespace vistrel
