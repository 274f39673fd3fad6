#pragma once

#include <string>

namespace vistrel {

class SimDesktop;

// Loads a capture of a real Mac's Mission Control (written by
// `Vistrel --capture-mission-control FILE`) as the scene of an empty desktop: its system
// version; its displays with their numbers, UUIDs and frames, where it recorded them; the
// Dock and WindowManager with the captured subtrees as their children; one application per
// other process of the window list, with a window at each listed bounds (titled like its
// thumbnail, or as the agent enumerated it, when the capture kept titles; its application
// bearing the bundle identifier the enumeration or a thumbnail gave); the other listed
// windows as they were; and hit-tests answered as captured at each thumbnail's centre where
// they gave an application's window, elsewhere by the deepest, smallest captured element
// under the point. Captured window numbers are mapped to the simulated windows'.
// False, with the reason in `error`, when the text is not such a capture.
bool loadCapturedScene(SimDesktop& desktop, const std::string& text, std::string& error);

}  // namespace vistrel
