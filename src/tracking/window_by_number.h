#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/ax_element.h"
#include "tracking/ax.h"

namespace vistrel {

// Finds the accessibility window behind a window server number, with public calls only:
// the on-screen window list gives the number's owner process and bounds, and the owner's
// accessibility window whose frame matches those bounds is the one; when several match,
// the one titled like the thumbnail, and none when no single one is.
namespace WindowByNumber {

// Enumerating an application's windows gives up after this long.
inline constexpr float applicationTimeout = 0.5f;
// Window server bounds and accessibility frames of one window may differ by rounding.
inline constexpr double frameTolerance = 1.0;
inline constexpr std::string_view windowsAttribute = "AXWindows";
inline constexpr std::string_view titleAttribute = "AXTitle";

// `thumbnail` is the element that showed the window; its title is read only to break a tie.
std::optional<AX::WindowHit> find(std::uint32_t number, const AXElement& thumbnail);

}  // namespace WindowByNumber

}  // namespace vistrel
