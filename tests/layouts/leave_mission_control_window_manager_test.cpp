// Leaving Mission Control by Escape where WindowManager holds it (macOS 27): the check
// after Escape reads the Dock's "mc" group, not the window list.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "escape_keys.h"
#include "layout_actions_test.h"
#include "layouts/layout_actions.h"

namespace vistrel {
namespace {

using namespace testing;

class LeaveMissionControlOnWindowManagerTest : public testing::LayoutActionsTest {
  protected:
    LeaveMissionControlOnWindowManagerTest() { desktop.systemInfo().version = {27, 0, 0}; }

    std::vector<WindowRef> raising() { return {ref("Notes"), ref("Start Page")}; }
    const Keys& posted() { return desktop.windowServer().postedKeys; }
};

TEST_F(LeaveMissionControlOnWindowManagerTest, OpenMissionControlIsSentEscapeOnce) {
    desktop.dock().open();

    LayoutActions::leaveMissionControl(raising());
    advance(3);

    EXPECT_EQ(posted(), escape);
    EXPECT_FALSE(desktop.dock().isOpen());
    EXPECT_EQ(logged(stillOpen), 0u);
}

TEST_F(LeaveMissionControlOnWindowManagerTest, TheStayingDockWindowDoesNotDrawASecondEscape) {
    desktop.dock().open();
    desktop.dock().close();

    LayoutActions::leaveMissionControl(raising());
    advance(3);

    EXPECT_TRUE(posted().empty());
}

TEST_F(LeaveMissionControlOnWindowManagerTest, StillOpenAfterEscapeIsSentItAgainAtTheRecheck) {
    desktop.dock().open();
    desktop.windowServer().onKey = [this, ignored = false](std::uint16_t, bool down) mutable {
        if (!down || ignored) return;
        ignored = true;
        desktop.dock().open();
    };

    LayoutActions::leaveMissionControl(raising());
    advance(LayoutActions::escapeRecheck - justBefore);
    EXPECT_EQ(posted(), escape);
    EXPECT_TRUE(desktop.dock().isOpen());
    advance(justAfter);

    EXPECT_EQ(posted(), escapeTwice);
    EXPECT_FALSE(desktop.dock().isOpen());
    EXPECT_EQ(logged(stillOpen), 1u);
    advance(LayoutActions::escapeSettle);
    EXPECT_EQ(titlesFrontToBack().front(), "Notes");
}

}  // namespace
}  // namespace vistrel
