#include "layouts/layout_actions.h"

#include <cmath>
#include <string>
#include <utility>

#include "base/log.h"
#include "layouts/layout_action_steps.h"
#include "platform/platform.h"
#include "settings/settings.h"
#include "tracking/mission_control_detector.h"
#include "windows/screens.h"
#include "windows/window_attribute.h"
#include "windows/window_mover.h"

namespace vistrel {

namespace {

constexpr std::string_view raiseAction = "AXRaise";

// Hands the work to the layouts queue.
void work(Task task) {
    WindowMover::queue()->async(std::move(task));
}

// Calls the completion on the main thread with the result.
template <typename Result>
void complete(const std::function<void(Result)>& done, Result result) {
    if (!done) return;
    platform().executor.main().async([done, result = std::move(result)] { done(result); });
}

// Keeps on the main thread how the windows were before the step moved them, ahead of the
// step's completion, so that the completion already finds it.
void keepUndo(LayoutActionSteps::Before before) {
    platform().executor.main().async([before = std::move(before)]() mutable {
        LayoutUndo::shared().keep({std::move(before), platform().clock.now()});
    });
}

void postEscape() {
    WindowServer& server = platform().windowServer;
    server.postKey(LayoutActions::escapeKeyCode, true);
    server.postKey(LayoutActions::escapeKeyCode, false);
}

void raiseLater(std::vector<WindowRef> windows) {
    WindowMover::queue()->after(LayoutActions::escapeSettle,
                                [windows = std::move(windows)] { LayoutActions::raise(windows); });
}

// Mission Control sometimes swallows the first Escape while it is still animating open.
void escapeAgainIfStillOpen(std::vector<WindowRef> windows) {
    if (!MissionControlDetector::isMissionControlOpen()) return;
    Log::info("layouts: Mission Control still open after Escape, sending it again");
    postEscape();
    raiseLater(std::move(windows));
}

}  // namespace

std::string LayoutActions::Restored::goneMessage() const {
    if (documentsGone == 1) return "1 document no longer exists";
    return std::to_string(documentsGone) + " documents no longer exist";
}

std::string LayoutActions::Restored::counts() const {
    std::string text = std::to_string(moved.size()) + " of " + std::to_string(windows) + " windows";
    if (documentsGone > 0) text += ", " + goneMessage();
    return text;
}

std::optional<std::string> LayoutActions::Restored::message() const {
    if (documentsGone > 0) return goneMessage();
    if (moved.empty()) return "None of its windows are open";
    return std::nullopt;
}

double LayoutActions::gap() {
    const double gap = Settings::shared().layoutsGap();
    // A stored NaN passes the clamp unchanged and would make every frame unwritable.
    return std::isnan(gap) ? 0 : gap;
}

void LayoutActions::captureCurrent(CaptureDone done) {
    work([screens = Screens::snapshot(), gap = gap(), done = std::move(done)] {
        complete(done, LayoutActionSteps::capture(screens, gap));
    });
}

void LayoutActions::restore(const SavedLayout& layout, RestoreDone done) {
    restore(layout, {}, std::move(done));
}

void LayoutActions::restore(const SavedLayout& layout, RestoreOptions options, RestoreDone done) {
    LayoutActionSteps::RestoreRequest request{
        layout, Screens::snapshot(), gap(),
        options.mayLaunch.value_or(Settings::shared().layoutsLaunchApps()), options.logs};
    work([request = std::move(request), raises = options.raises, done = std::move(done)] {
        LayoutActionSteps::Before before;
        Restored restored = LayoutActionSteps::restore(request, before);
        keepUndo(std::move(before));
        // With nothing moved Mission Control stays open, to say why.
        if (raises && !restored.moved.empty()) leaveMissionControl(restored.moved);
        complete(done, std::move(restored));
    });
}

void LayoutActions::arrange(std::vector<Placement> placements, const ScreenInfo& screen,
                            ArrangeDone done) {
    work([placements = std::move(placements), screen, screens = Screens::snapshot(), gap = gap(),
          done = std::move(done)] {
        LayoutActionSteps::Before before;
        LayoutActionSteps::Arranged arranged =
            LayoutActionSteps::arrange(placements, screen, gap, before);
        keepUndo(std::move(before));
        if (!arranged.moved.empty()) leaveMissionControl(std::move(arranged.moved));
        complete(done, LayoutActionSteps::layoutOf(std::move(arranged.windows), screens));
    });
}

void LayoutActions::snap(const WindowRef& window, SnapKey key, SnapDone done) {
    work([window, key, screens = Screens::snapshot(), gap = gap(), done = std::move(done)] {
        LayoutActionSteps::Before before;
        auto snapped = LayoutActionSteps::snap(window, key, screens, gap, before);
        keepUndo(std::move(before));
        complete(done, std::move(snapped));
    });
}

void LayoutActions::undo(UndoDone done) {
    std::optional<LayoutUndo::Record> record = LayoutUndo::shared().take();
    if (!record) {
        complete(done, std::optional<LayoutUndo::Outcome>());
        return;
    }
    work([record = std::move(*record), done = std::move(done)] {
        LayoutUndo::Outcome outcome = LayoutUndo::putBack(record);
        Log::info("layouts: undid the last change, " + std::to_string(outcome.moved.size()) +
                  " windows back, " + std::to_string(outcome.closed) + " closed since");
        complete(done, std::optional(std::move(outcome)));
    });
}

void LayoutActions::leaveMissionControl(std::vector<WindowRef> raising) {
    const bool wasOpen = MissionControlDetector::isMissionControlOpen();
    if (wasOpen) postEscape();
    raiseLater(raising);
    if (!wasOpen) return;
    WindowMover::queue()->after(
        escapeRecheck, [raising = std::move(raising)] { escapeAgainIfStillOpen(raising); });
}

// Each window is raised, then its application activated without all its windows, which
// brings forward only the window just raised: making the application frontmost through the
// accessibility interface would lift every one of its windows over the layout.
void LayoutActions::raise(const std::vector<WindowRef>& windows) {
    Platform& p = platform();
    // Backwards, so that the first window ends up in front.
    for (auto it = windows.rbegin(); it != windows.rend(); ++it) {
        if (it != windows.rbegin()) p.clock.sleep(raisePause);
        WindowAttribute::setTimeout(it->element, WindowAttribute::actionTimeout);
        p.accessibility.performAction(it->element, raiseAction);
        p.workspace.activate(it->pid);
    }
}

}  // namespace vistrel
