#pragma once

#include <string_view>

namespace vistrel {

// The Accessibility list of the Privacy & Security settings, where the user grants Vistrel
// the access it needs or takes a stale grant away to give it again.
namespace AccessibilityPane {

inline constexpr std::string_view url =
    "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";

// Opens it with NSWorkspace.open.
void open();

}  // namespace AccessibilityPane

}  // namespace vistrel
