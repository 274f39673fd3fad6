#pragma once

#include <optional>
#include <string>
#include <vector>

#include "layouts/layout_actions.h"
#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_scene.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "support/sim_test.h"

namespace vistrel::testing {

// The default scene (Safari, Notes, Terminal, Mail and Finder on one 1440×900 screen) with
// helpers to name its windows, set the layouts' preferences and collect completions.
class LayoutActionsTest : public SimTest {
  protected:
    // The visible frame of the scene's screen, in accessibility coordinates.
    static constexpr Rect visible{0, 25, 1440, 805};

    LayoutActionsTest() { populateDefaultScene(desktop); }

    // The open window with this title.
    SimWindowId windowTitled(const std::string& title) {
        for (const SimWindow& window : desktop.windows()) {
            if (window.title == title && !window.closed) return window.id;
        }
        ADD_FAILURE() << "no window titled " << title;
        return 0;
    }
    SimWindow& window(const std::string& title) { return *desktop.window(windowTitled(title)); }
    WindowRef ref(const std::string& title) {
        const SimWindowId id = windowTitled(title);
        return {desktop.accessibility().windowElement(id), desktop.window(id)->pid};
    }
    Pid pidOf(const std::string& bundleID) {
        for (const SimApplication& app : desktop.applications()) {
            if (app.bundleIdentifier == bundleID && !app.terminated) return app.pid;
        }
        return 0;
    }
    // Quits the application; it stays installed, so a restore can launch it again.
    void quit(const std::string& bundleID) { desktop.workspace().forceTerminate(pidOf(bundleID)); }

    void setPreference(std::string_view key, const DefaultsValue& value) {
        desktop.defaults().domain(std::string(Shared::domain))->set(std::string(key), value);
    }
    void setGap(double gap) { setPreference(PreferenceKey::layoutsGap, gap); }
    void setLaunchApps(bool on) { setPreference(PreferenceKey::layoutsLaunchApps, on); }

    // Runs every queue until nothing is left to do; virtual time stands still.
    void run() { desktop.executor().runUntilIdle(); }
    // Moves virtual time on, running what falls due.
    void advance(double seconds) { desktop.executor().advance(seconds); }

    std::vector<std::string> log() { return desktop.systemLog().messages(); }
    std::size_t logged(std::string_view message) { return desktop.systemLog().count(message); }

    // The titles of the on-screen windows, front to back.
    std::vector<std::string> titlesFrontToBack() {
        std::vector<std::string> titles;
        for (const SimWindow& w : desktop.windows()) {
            if (desktop.isOnScreen(w)) titles.push_back(w.title);
        }
        return titles;
    }

    // Restores and runs the queues; the windows the completion reported.
    std::vector<WindowRef> restore(const SavedLayout& layout) {
        std::optional<std::vector<WindowRef>> moved;
        LayoutActions::restore(
            layout, [&](const LayoutActions::Restored& result) { moved = result.moved; });
        run();
        EXPECT_TRUE(moved.has_value()) << "the restore did not complete";
        return moved.value_or(std::vector<WindowRef>{});
    }

    static SavedLayout layoutOf(std::vector<SavedLayout::Window> windows,
                                std::string name = "Desk") {
        return {UUID::random(), std::move(name), std::move(windows), 0};
    }
};

}  // namespace vistrel::testing
