// macOS tells a program linked against an older SDK an older, compatibility version (26
// told such programs 16: dotnet/runtime pull request 116536, python/cpython pull request
// 136339). A macOS 27 that calls itself 16 shows no layer-18 window in
// Mission Control, so the version must not decide whether the Dock's tree is read: the
// agent still sees Mission Control open, shows the strip, and leaves it with Escape.
#include <gtest/gtest.h>

#include <cstdint>
#include <utility>
#include <vector>

#include "engine_scenario.h"
#include "layouts/layout_actions.h"
#include "support/presented.h"
#include "tracking/mission_control_detector.h"

namespace vistrel::testing {
namespace {

using Keys = std::vector<std::pair<std::uint16_t, bool>>;

// macOS 27, in each way it may show Mission Control, telling the agent 16.
class MacOS27ToldSixteenTest : public Presented<EngineScenario> {
  protected:
    MacOS27ToldSixteenTest() {
        desktop.systemInfo().actualMajor = desktop.systemInfo().version.major;
        desktop.systemInfo().version = {16, 0, 0};
    }
};

class OlderVersionToldTest : public EngineScenario {
  protected:
    OlderVersionToldTest() {
        desktop.systemInfo().version = {16, 0, 0};
        desktop.systemInfo().actualMajor = 27;
    }
};

TEST_P(MacOS27ToldSixteenTest, IsSeenInMissionControlWithoutALayer18Window) {
    desktop.dock().open();
    ASSERT_FALSE(MissionControlDetector::windowListShowsMissionControl());
    EXPECT_TRUE(MissionControlDetector::isMissionControlOpen());
    desktop.executor().advance(MissionControlDetector::closedInterval);
    EXPECT_TRUE(engine->active());
    EXPECT_EQ(logged("mission control: reading WindowManager"), 1u);
}

TEST_P(MacOS27ToldSixteenTest, ShowsTheStripOverAHoveredThumbnail) {
    openMissionControl();
    const Rect thumb = thumbOf("Notes");
    move(inside(thumb));
    ASSERT_TRUE(engine->target());
    EXPECT_EQ(engine->target()->window,
              desktop.accessibility().windowElement(windowTitled("Notes")));
    ASSERT_TRUE(engine->layout());
    EXPECT_TRUE(engine->overlay().window().isVisible());
}

TEST_P(MacOS27ToldSixteenTest, IsLeftWithEscapeAfterALayout) {
    openMissionControl();
    ASSERT_TRUE(engine->active());
    LayoutActions::leaveMissionControl({});
    desktop.executor().advance(LayoutActions::escapeRecheck + LayoutActions::escapeSettle);
    EXPECT_EQ(desktop.windowServer().postedKeys,
              (Keys{{LayoutActions::escapeKeyCode, true}, {LayoutActions::escapeKeyCode, false}}));
    EXPECT_FALSE(desktop.dock().isOpen());
}

// Once a layer-18 window has announced Mission Control, the system is one that shows it,
// and the closed-state poll reads the window list alone, as before.
TEST_F(OlderVersionToldTest, ASystemThatAnnouncesMissionControlStopsReadingTheDockWhileClosed) {
    desktop.systemInfo().actualMajor.reset();
    desktop.executor().advance(1);
    desktop.accessibility().resetCounts();
    desktop.executor().advance(1);
    EXPECT_GT(desktop.accessibility().attributeReads("AXChildren"), 0u)
        << "until announced, every poll reads the Dock";
    openMissionControl();
    closeMissionControl();
    desktop.executor().advance(1);
    desktop.accessibility().resetCounts();
    desktop.executor().advance(2);
    EXPECT_EQ(desktop.accessibility().attributeReads("AXChildren"), 0u);
}

INSTANTIATE_TEST_SUITE_P(MacOS27Presentations, MacOS27ToldSixteenTest,
                         ::testing::Values(SimPresentation::numberedThumbnails,
                                           SimPresentation::unnumberedThumbnails),
                         PresentationName{});

}  // namespace
}  // namespace vistrel::testing
