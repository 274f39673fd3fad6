#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "layouts/saved_layout.h"

namespace vistrel {

// Decides which open window takes the place of each saved window when a layout is restored.
struct LayoutMatch {
    // An open window as matching sees it.
    struct Open {
        std::string bundleID;
        std::string title;
    };

    // One entry per saved window, in order: the index of its open window, or none. A titled
    // saved window first takes the first unused open window of its application with the same
    // title; then every saved window still without one takes the first unused open window of
    // its application. No open window is given twice; comparisons are case-sensitive.
    static std::vector<std::optional<std::size_t>> pair(
        const std::vector<SavedLayout::Window>& saved, const std::vector<Open>& open);
};

}  // namespace vistrel
