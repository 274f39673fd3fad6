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
        std::optional<std::string> document = {};
    };

    // One entry per saved window, in order: the index of its open window, or none. A saved
    // window with a document first takes the first unused open window of its application
    // showing that file; then a titled saved window takes the first unused open window of
    // its application with the same title; then every saved window still without one takes
    // the first unused open window of its application. A window showing one file never takes
    // the place of a window saved with another: several windows of one application, each on
    // its own file, each go back to their own places. No open window is given twice; titles
    // are compared case-sensitively.
    static std::vector<std::optional<std::size_t>> pair(
        const std::vector<SavedLayout::Window>& saved, const std::vector<Open>& open);
};

}  // namespace vistrel
