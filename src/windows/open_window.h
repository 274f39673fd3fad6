#pragma once

#include <optional>
#include <string>

#include "platform/geometry.h"
#include "windows/window_ref.h"

namespace vistrel {

// One visible standard window of another application, as the window mover lists it.
struct OpenWindow {
    WindowRef ref;
    std::string bundleID;  // the application's bundle identifier
    std::string app;       // the application's localized name, empty when it has none
    std::string title;     // "AXTitle", empty when absent
    Rect frame;            // accessibility coordinates
    bool minimized = false;
    // The file the window shows, as a file URL: its "AXDocument", or for a Finder window the
    // folder Finder says it shows; none when unknown.
    std::optional<std::string> document = {};

    friend bool operator==(const OpenWindow&, const OpenWindow&) = default;
};

}  // namespace vistrel
