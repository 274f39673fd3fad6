#pragma once

#include <string>

#include "platform/sim/sim_desktop.h"

namespace vistrel::testing {

// A text editor that is installed but not running, for tests of launching: it comes up
// `launchDelay` seconds after it is opened, with one "Untitled" window `windowDelay` later.
inline const std::string editorID = "com.example.editor";
inline const std::string editorPath = "/Applications/Editor.app";
inline constexpr Rect editorWindowFrame{200, 200, 600, 400};

inline void installEditor(SimDesktop& desktop, double launchDelay, double windowDelay) {
    SimWindow window;
    window.title = "Untitled";
    window.frame = editorWindowFrame;
    desktop.installations().install({editorID,
                                     "Editor",
                                     editorPath,
                                     Color::fromRGB(0xFF9500),
                                     {window},
                                     launchDelay,
                                     windowDelay});
}

}  // namespace vistrel::testing
