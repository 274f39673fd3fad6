#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "escape_keys.h"
#include "layout_actions_test.h"
#include "layouts/layout_actions.h"
#include "windows/recording_accessibility.h"

namespace vistrel {
namespace {

using namespace testing;

class LayoutActionsLeaveTest : public testing::LayoutActionsTest {
  protected:
    // Windows listed back to front, so raising them in list order would leave them so.
    std::vector<WindowRef> raising() {
        return {ref("Applications"), ref("Inbox – iCloud"), ref("Notes")};
    }
    const std::vector<std::string> raised{"Applications", "Inbox – iCloud", "Notes"};

    std::vector<std::string> front(std::size_t count) {
        const auto titles = titlesFrontToBack();
        return {titles.begin(), titles.begin() + static_cast<std::ptrdiff_t>(count)};
    }

    const Keys& posted() { return desktop.windowServer().postedKeys; }

    // Mission Control ignores the first Escape, as it does while still animating open.
    void ignoreFirstEscape() {
        desktop.windowServer().onKey = [this, ignored = false](std::uint16_t, bool down) mutable {
            if (!down || ignored) return;
            ignored = true;
            desktop.dock().open();
        };
    }
};

TEST_F(LayoutActionsLeaveTest, WithMissionControlClosedNoEscapeIsPostedAndTheWindowsAreRaised) {
    LayoutActions::leaveMissionControl(raising());
    advance(3);

    EXPECT_TRUE(posted().empty());
    EXPECT_EQ(front(3), raised);
    EXPECT_EQ(logged(stillOpen), 0u);
}

TEST_F(LayoutActionsLeaveTest, WithMissionControlOpenEscapeIsPostedAtOnce) {
    desktop.dock().open();

    LayoutActions::leaveMissionControl(raising());

    EXPECT_EQ(posted(), escape);
    EXPECT_FALSE(desktop.dock().isOpen());
}

TEST_F(LayoutActionsLeaveTest, TheWindowsAreRaisedAfterMissionControlHadTimeToClose) {
    desktop.dock().open();
    const auto before = front(3);

    LayoutActions::leaveMissionControl(raising());
    advance(LayoutActions::escapeSettle - justBefore);
    EXPECT_EQ(front(3), before);
    advance(justAfter);

    EXPECT_EQ(front(3), raised);
}

TEST_F(LayoutActionsLeaveTest, MissionControlThatClosedIsNotSentEscapeAgain) {
    desktop.dock().open();

    LayoutActions::leaveMissionControl(raising());
    advance(3);

    EXPECT_EQ(posted(), escape);
    EXPECT_EQ(logged(stillOpen), 0u);
}

TEST_F(LayoutActionsLeaveTest, MissionControlStillOpenAfterEscapeIsSentItAgainAndTheWindowsRaised) {
    desktop.dock().open();
    ignoreFirstEscape();

    LayoutActions::leaveMissionControl(raising());
    advance(LayoutActions::escapeRecheck - justBefore);
    EXPECT_EQ(posted(), escape);
    EXPECT_TRUE(desktop.dock().isOpen());
    // Something else comes forward before the second Escape.
    desktop.bringToFront(windowTitled("Start Page"));
    advance(justAfter);

    EXPECT_EQ(posted(), escapeTwice);
    EXPECT_FALSE(desktop.dock().isOpen());
    EXPECT_EQ(logged(stillOpen), 1u);
    EXPECT_EQ(front(1), std::vector<std::string>{"Start Page"});
    advance(LayoutActions::escapeSettle);
    EXPECT_EQ(front(3), raised);
    advance(5);
    EXPECT_EQ(posted(), escapeTwice);
    EXPECT_EQ(logged(stillOpen), 1u);
}

TEST_F(LayoutActionsLeaveTest, MissionControlOpenedOnlyAfterwardsIsLeftAlone) {
    LayoutActions::leaveMissionControl(raising());
    advance(0.5);
    desktop.dock().open();
    advance(3);

    EXPECT_TRUE(posted().empty());
    EXPECT_TRUE(desktop.dock().isOpen());
}

TEST_F(LayoutActionsLeaveTest, RaisingGoesFromTheLastWindowToTheFirstLeavingTheFirstInFront) {
    LayoutActions::raise(raising());

    EXPECT_EQ(front(3), raised);
}

TEST_F(LayoutActionsLeaveTest, RaisingPausesBetweenWindows) {
    const double start = desktop.clock().now();

    LayoutActions::raise(raising());

    EXPECT_NEAR(desktop.clock().now() - start, 2 * LayoutActions::raisePause, 1e-6);
}

TEST_F(LayoutActionsLeaveTest, RaisingActivatesEachApplicationLastWindowFirst) {
    LayoutActions::raise(raising());

    EXPECT_EQ(desktop.workspace().activations,
              (std::vector<Pid>{pidOf("com.apple.Notes"), pidOf("com.apple.mail"),
                                pidOf("com.apple.finder")}));
}

// Setting AXFrontmost on the application element, like activating it with all its windows,
// would lift every window it has over the layout.
TEST_F(LayoutActionsLeaveTest, RaisingOneWindowOfAnApplicationLeavesItsOtherWindowsBehind) {
    SimWindow second;
    second.title = "Drafts – iCloud";
    second.frame = {200, 200, 700, 500};
    desktop.addWindow(pidOf("com.apple.mail"), second);
    desktop.bringToFront(windowTitled("Drafts – iCloud"));
    testing::RecordingAccessibility recording(desktop.platform());

    LayoutActions::raise(raising());

    EXPECT_EQ(front(4), (std::vector<std::string>{"Applications", "Inbox – iCloud", "Notes",
                                                  "Drafts – iCloud"}));
    EXPECT_EQ(std::count_if(recording.writes.begin(), recording.writes.end(),
                            [](const auto& write) { return write.attribute == "AXFrontmost"; }),
              0);
}

TEST_F(LayoutActionsLeaveTest, AWindowThatClosedDoesNotStopTheOthersFromBeingRaised) {
    const std::vector<WindowRef> windows = raising();
    desktop.closeWindow(windowTitled("Inbox – iCloud"));

    LayoutActions::raise(windows);

    EXPECT_EQ(front(2), (std::vector<std::string>{"Applications", "Notes"}));
}

}  // namespace
}  // namespace vistrel
