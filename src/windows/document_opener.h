#pragma once

#include <optional>
#include <string>

#include "windows/open_window.h"

namespace vistrel {

// Brings back the window of a file whose window has gone: opens the file in its application
// (a folder in Finder) in the background and waits for a window showing it, as a launch
// waits for the application's first window.
struct DocumentOpener {
    struct Opened {
        std::optional<OpenWindow> window;
        bool gone = false;  // the file no longer exists, and nothing was opened
    };

    // The window showing the file; `gone` when there is no such file; neither when the
    // application is not installed, would not open it, or showed no window of it in time.
    // Says in the log what became of the file, unless `logs` is false. Blocks for up to the
    // launch's time-out and polls; layouts queue only.
    static Opened open(const std::string& bundleID, const std::string& document, bool logs = true);
};

}  // namespace vistrel
