#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "layouts/layout_undo.h"
#include "layouts/saved_layout.h"
#include "layouts/snap.h"
#include "layouts/unit_rect.h"
#include "platform/geometry.h"
#include "windows/screen_info.h"
#include "windows/window_ref.h"

namespace vistrel {

// The window work of the Layouts feature: capturing the open windows as a layout,
// restoring a saved one (launching its applications when allowed), arranging picked windows
// into slots, snapping one window, and leaving Mission Control while raising the windows
// just placed. Each operation reads the settings and the screens on the calling (main)
// thread, works on the layouts queue and calls its completion on the main thread.
struct LayoutActions {
    // One window and the slot it goes into.
    struct Placement {
        WindowRef ref;
        UnitRect rect;
    };
    // Where a snap put a window.
    struct Snapped {
        UnitRect unit;
        Rect frame;

        friend bool operator==(const Snapped&, const Snapped&) = default;
    };

    // How a restore goes: whether it may open applications that are not running (as
    // "layouts.launchApps" says, when not given), whether it closes Mission Control and
    // raises the windows it placed, and whether it writes its own lines to the log (a caller
    // that tells of the whole restore in one line of its own turns them off).
    struct RestoreOptions {
        std::optional<bool> mayLaunch;
        bool raises = true;
        bool logs = true;
    };

    // What a restore did: the windows it moved, in the layout's order, how many windows the
    // layout has, and how many of them showed files that no longer exist.
    struct Restored {
        std::vector<WindowRef> moved;
        std::size_t windows = 0;
        int documentsGone = 0;

        // "1 document no longer exists", "2 documents no longer exist".
        std::string goneMessage() const;
        // What it did, for the log: "1 of 2 windows", then the files gone when any were.
        std::string counts() const;
        // What the user is told once it is done, when anything: the files that no longer
        // exist, else that none of the layout's windows are open.
        std::optional<std::string> message() const;
    };

    using CaptureDone = std::function<void(std::optional<SavedLayout>)>;
    using RestoreDone = std::function<void(Restored)>;
    using ArrangeDone = std::function<void(std::optional<SavedLayout>)>;
    using SnapDone = std::function<void(std::optional<Snapped>)>;
    using UndoDone = std::function<void(std::optional<LayoutUndo::Outcome>)>;

    // Mission Control gets this long to close after Escape before the windows are raised;
    // it is checked again after the longer pause and sent Escape once more if still open.
    static constexpr double escapeSettle = 0.35;
    static constexpr double escapeRecheck = 0.8;
    // Pause between raising one window and the next.
    static constexpr double raisePause = 0.03;
    static constexpr std::uint16_t escapeKeyCode = 53;

    // The visible windows as a new layout; none when there are none.
    static void captureCurrent(CaptureDone done);
    // Moves the layout's windows back, opening again the files of windows that have gone;
    // completes with what it did.
    static void restore(const SavedLayout& layout, RestoreDone done);
    static void restore(const SavedLayout& layout, RestoreOptions options, RestoreDone done);
    // Places each window into its slot on `screen`; completes with the layout they form.
    static void arrange(std::vector<Placement> placements, const ScreenInfo& screen,
                        ArrangeDone done);
    // Moves the window where the key sends it; none when nothing moved.
    static void snap(const WindowRef& window, SnapKey key, SnapDone done);

    // Puts back the windows the last restore, arrangement or snap moved, when it is less than
    // ten minutes old; completes with what it did, nothing when there was nothing to undo.
    static void undo(UndoDone done);

    // Closes Mission Control with Escape and raises the windows, the first in front. Runs
    // on the layouts queue.
    static void leaveMissionControl(std::vector<WindowRef> raising);
    // Raises the windows from the last to the first, each with its application activated
    // without its other windows, pausing between them. Blocks; layouts queue only.
    static void raise(const std::vector<WindowRef>& windows);

    // The "layouts.gap" setting clamped to 0...40 points.
    static double gap();
};

}  // namespace vistrel
