#pragma once

#include <string>

#include "layouts/saved_layout.h"

namespace vistrel {

// One window of a saved layout as the Settings app lists it: the application, and the
// file the window shows by its name, or the window's title when it shows none.
struct LayoutWindowRow {
    std::string app;
    // The document's file name (a folder's own name), else the title; may be empty.
    std::string detail;
    // The document's full path, for a tool tip; empty without a document.
    std::string path;

    static LayoutWindowRow of(const SavedLayout::Window& window);

    friend bool operator==(const LayoutWindowRow&, const LayoutWindowRow&) = default;
};

}  // namespace vistrel
