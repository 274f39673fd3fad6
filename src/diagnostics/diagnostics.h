#pragma once

#include <string>
#include <string_view>

namespace vistrel {

// The plain-text description of the agent and its machine that a problem report carries
// and "--diagnose" prints: one line per item, every value read at the moment of the call.
struct Diagnostics {
    // Mark of the main screen in the display lines.
    static constexpr std::string_view mainScreenMark = " (main)";
    // Stands in for a value the system would not tell.
    static constexpr std::string_view unknown = "?";

    // Main thread only: it reads the settings and the screens.
    static std::string text();
};

}  // namespace vistrel
