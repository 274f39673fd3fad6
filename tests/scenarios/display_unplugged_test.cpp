#include <gtest/gtest.h>

#include "base/hotkey.h"
#include "layouts_scenario.h"
#include "windows/screens.h"

namespace vistrel::testing {
namespace {

constexpr std::uint64_t command = ModifierFlag::command;
constexpr std::int64_t leftArrow = 123;
constexpr Size externalDisplay{1920, 1080};

// A second display is unplugged while Mission Control is open and a window on it is
// hovered. The system moves that display's windows to the one left; the agent must drop
// what it showed there and go on with the screen that remains.
class DisplayUnpluggedTest : public LayoutsScenario {
  protected:
    void SetUp() override {
        desktop.addScreenToTheRight(externalDisplay);
        const Rect external = desktop.accessibilityScreenFrames().back();
        desktop.window(windowTitled("Notes"))->frame = {external.x + 100, external.y + 100, 800,
                                                        600};
        openMissionControl();
        hover("Notes");
    }

    // The display goes; its windows land on the primary display, as macOS moves them.
    void unplug() {
        desktop.screens().pop_back();
        desktop.window(windowTitled("Notes"))->frame = {200, 100, 800, 600};
    }
};

TEST_F(DisplayUnpluggedTest, TheStripOverTheGoneDisplayIsTakenDownWhenThePointerMoves) {
    const Point overGoneThumbnail = inside(thumbOf("Notes"));
    unplug();
    tick();
    move({overGoneThumbnail.x + 1, overGoneThumbnail.y});
    EXPECT_FALSE(engine->target());
    EXPECT_FALSE(engine->overlay().window().isVisible());
}

TEST_F(DisplayUnpluggedTest, TheMovedWindowIsHoveredOnTheDisplayThatRemains) {
    unplug();
    tick();
    hover("Notes");
    EXPECT_EQ(engine->target()->pid, desktop.window(windowTitled("Notes"))->pid);
    EXPECT_TRUE(engine->overlay().window().isVisible());
}

TEST_F(DisplayUnpluggedTest, SnappingTheHoveredWindowRightAfterUsesTheDisplayThatRemains) {
    unplug();
    EXPECT_FALSE(key(leftArrow, command));
    desktop.executor().advance(1);
    EXPECT_EQ(frameOf("Notes"), UnitRect({0, 0, 0.5, 1}).frame(usableArea(), 0));
}

TEST_F(DisplayUnpluggedTest, ClosingMissionControlAfterwardsLeavesNothingShown) {
    unplug();
    tick();
    closeMissionControl();
    tick();
    EXPECT_FALSE(engine->active());
    EXPECT_TRUE(nothingShown());
}

}  // namespace
}  // namespace vistrel::testing
