#pragma once

#include <optional>
#include <string>
#include <vector>

#include "layouts/layout_actions.h"
#include "layouts/layout_undo.h"
#include "layouts/saved_layout.h"
#include "layouts/snap.h"
#include "windows/screen_info.h"
#include "windows/window_ref.h"

namespace vistrel {

// The window work behind LayoutActions, one blocking step per operation, run on the layouts
// queue with the settings and screens the caller read beforehand.
namespace LayoutActionSteps {

// The windows a step moves, each as it was before it moved, for undoing the step.
using Before = std::vector<LayoutUndo::Window>;

// What a restore needs from the main thread.
struct RestoreRequest {
    SavedLayout layout;
    std::vector<ScreenInfo> screens;
    double gap = 0;
    bool launchApps = true;
    bool logs = true;
};

// The windows an arrangement recorded, and those of them that took their frames.
struct Arranged {
    std::vector<SavedLayout::Window> windows;
    std::vector<WindowRef> moved;
};

// The visible windows as a new layout; none when no window is on a screen.
std::optional<SavedLayout> capture(const std::vector<ScreenInfo>& screens, double gap);
// Moves the layout's windows back, opening again the file of each window that has gone and
// placing its new window; what it did.
LayoutActions::Restored restore(const RestoreRequest& request, Before& before);
// Places the windows into their slots on the screen, full-screen windows left alone.
Arranged arrange(const std::vector<LayoutActions::Placement>& placements, const ScreenInfo& screen,
                 double gap, Before& before);
// Moves the window where the key sends it on the screen holding it.
std::optional<LayoutActions::Snapped> snap(const WindowRef& window, SnapKey key,
                                           const std::vector<ScreenInfo>& screens, double gap,
                                           Before& before);

// A new layout of these windows, named after their applications, dated now and remembering
// the displays connected; none without windows.
std::optional<SavedLayout> layoutOf(std::vector<SavedLayout::Window> windows,
                                    const std::vector<ScreenInfo>& screens);

}  // namespace LayoutActionSteps

}  // namespace vistrel
