#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "base/hotkey.h"
#include "platform/sim/sim_dock.h"
#include "platform/sim/sim_presentation.h"
#include "platform/sim/sim_scene.h"
#include "support/sim_test.h"
#include "tracking/ax.h"
#include "tracking/thumbnail_reader.h"
#include "tracking/window_catalog.h"
#include "windows/window_actions.h"
#include "windows/window_attribute.h"
#include "windows/window_mover.h"

namespace vistrel {
namespace {

using TimedCall = SimAccessibility::TimedCall;

// A time-out set on the system-wide element is the default of every element that has none
// of its own, and a time-out set on any other element is that element's alone (Apple's
// documentation of AXUIElementSetMessagingTimeout). So once the first hover has set the hit
// test's 0.2 s, every element that is not given its own waits no longer than that: each
// kind of work must give every element it reads or acts on its own time-out.
class AccessibilityTimeoutsTest : public testing::SimTest {
  protected:
    AccessibilityTimeoutsTest() {
        populateDefaultScene(desktop);
        AX::systemWide();  // the hit test's default is in force, as after the first hover
        desktop.accessibility().recordTimeouts = true;
    }

    Pid pidOf(const std::string& bundleIdentifier) {
        for (const SimApplication& app : desktop.applications()) {
            if (app.bundleIdentifier == bundleIdentifier) return app.pid;
        }
        ADD_FAILURE() << "no application " << bundleIdentifier;
        return 0;
    }
    SimWindowId windowOf(Pid pid) { return desktop.windowsOf(pid).front(); }
    AXElement elementOf(Pid pid) { return desktop.accessibility().windowElement(windowOf(pid)); }

    // The time-outs of the calls that reached the application, none repeated.
    std::vector<float> timeoutsOf(Pid pid) {
        std::vector<float> seen;
        for (const TimedCall& call : desktop.accessibility().timedCalls()) {
            if (call.pid != pid) continue;
            if (std::find(seen.begin(), seen.end(), call.timeout) == seen.end()) {
                seen.push_back(call.timeout);
            }
        }
        return seen;
    }
    void act(Hotkey hotkey, Pid pid) {
        WindowActions::perform(elementOf(pid), pid, hotkey);
        desktop.executor().runUntilIdle();
    }
};

TEST_F(AccessibilityTimeoutsTest, TheSystemWideTimeoutIsTheDefaultOfEveryElementWithoutItsOwn) {
    const Pid notes = pidOf("com.apple.Notes");
    desktop.accessibility().setMessagingTimeout(desktop.accessibility().application(notes), 1.0f);
    EXPECT_FLOAT_EQ(desktop.accessibility().messagingTimeout(elementOf(notes)),
                    AX::systemWideTimeout);
}

TEST_F(AccessibilityTimeoutsTest, EveryCallOfEachWindowActionWaitsOneSecond) {
    const std::pair<Hotkey, const char*> actions[] = {{Hotkey::close, "com.apple.Notes"},
                                                      {Hotkey::minimize, "com.apple.Terminal"},
                                                      {Hotkey::maximize, "com.apple.mail"}};
    for (const auto& [hotkey, bundleIdentifier] : actions) {
        const Pid pid = pidOf(bundleIdentifier);
        act(hotkey, pid);
        EXPECT_EQ(timeoutsOf(pid), (std::vector<float>{WindowAttribute::actionTimeout}))
            << bundleIdentifier;
    }
}

TEST_F(AccessibilityTimeoutsTest, ClosingAllWindowsWaitsOneSecondOnEveryWindowAndButton) {
    const Pid safari = pidOf("com.apple.Safari");
    SimWindow second;
    second.title = "Favourites";
    second.frame = {100, 100, 800, 600};
    desktop.addWindow(safari, second);
    act(Hotkey::closeAll, safari);
    EXPECT_EQ(timeoutsOf(safari), (std::vector<float>{WindowAttribute::actionTimeout}));
}

TEST_F(AccessibilityTimeoutsTest, EveryCallOfAFrameWriteWaitsOneSecond) {
    const Pid notes = pidOf("com.apple.Notes");
    WindowMover::setFrame(notes, elementOf(notes), {10, 40, 600, 400});
    EXPECT_EQ(timeoutsOf(notes), (std::vector<float>{WindowAttribute::actionTimeout}));
}

TEST_F(AccessibilityTimeoutsTest, EnumeratingAnApplicationsWindowsWaitsHalfASecondOnEachWindow) {
    const Pid notes = pidOf("com.apple.Notes");
    EXPECT_FALSE(WindowMover::windows(*desktop.workspace().application(notes), true).empty());
    WindowCatalog catalog;
    catalog.enumerate(desktop.workspace().ownPid());
    EXPECT_EQ(timeoutsOf(notes), (std::vector<float>{WindowMover::enumerationTimeout}));
}

TEST_F(AccessibilityTimeoutsTest, EveryElementOfTheDocksTreeWaitsAtMostThreeTenths) {
    desktop.dock().open();
    ThumbnailReader reader;
    EXPECT_FALSE(reader.read().thumbnails.empty());
    EXPECT_EQ(timeoutsOf(desktop.dock().pid()), (std::vector<float>{ThumbnailReader::dockTimeout}));
}

TEST_F(AccessibilityTimeoutsTest, EveryElementOfWindowManagersTreeWaitsAtMostThreeTenths) {
    present(desktop, SimPresentation::unnumberedThumbnails);
    desktop.dock().open();
    ThumbnailReader reader;
    EXPECT_FALSE(reader.read().thumbnails.empty());
    EXPECT_EQ(timeoutsOf(desktop.dock().windowManagerPid()),
              (std::vector<float>{WindowManagerThumbnails::timeout}));
}

TEST_F(AccessibilityTimeoutsTest, TheHitTestAndWhatItAnswersWaitTwoTenths) {
    desktop.dock().open();
    const Pid notes = pidOf("com.apple.Notes");
    Rect thumb;
    for (const auto& thumbnail : desktop.dock().thumbnails()) {
        if (thumbnail.window == windowOf(notes)) thumb = thumbnail.frame;
    }
    ASSERT_TRUE(AX::hitWindow(thumb.mid()));
    EXPECT_EQ(timeoutsOf(notes), (std::vector<float>{AX::systemWideTimeout}));
}

}  // namespace
}  // namespace vistrel
