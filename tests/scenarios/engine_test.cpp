#include <gtest/gtest.h>

#include "base/hotkey.h"
#include "engine_scenario.h"
#include "platform/sim/sim_event_tap_port.h"
#include "settings/shared.h"
#include "support/presented.h"
#include "tracking/mission_control_detector.h"
#include "windows/window_actions.h"

namespace vistrel::testing {
namespace {

constexpr std::uint64_t command = ModifierFlag::command;

AXElement elementOf(SimDesktop& desktop, SimWindowId id) {
    return desktop.accessibility().windowElement(id);
}

// The agent's engine on the everyday scene, on each way a Mac presents Mission Control.
class EngineTest : public Presented<EngineScenario> {};

TEST_P(EngineTest, OpeningMissionControlLogsItStartsTheTapAndReadsTheThumbnails) {
    openMissionControl();
    EXPECT_TRUE(engine->active());
    EXPECT_EQ(logged("mission control appeared"), 1u);
    EXPECT_EQ(logged("did start listening for events"), 1u);
    EXPECT_TRUE(desktop.eventTap().enabled());
    EXPECT_EQ(engine->thumbs().size(), thumbnailsRead());
    EXPECT_FALSE(engine->thumbs().empty());
}

TEST_P(EngineTest, HoveringAThumbnailShowsTheStripOverItsTopLeftCorner) {
    openMissionControl();
    const Rect thumb = thumbOf("Notes");
    move(inside(thumb));
    ASSERT_TRUE(engine->target());
    EXPECT_EQ(engine->target()->window, elementOf(desktop, windowTitled("Notes")));
    EXPECT_EQ(engine->target()->pid, desktop.window(windowTitled("Notes"))->pid);
    ASSERT_TRUE(engine->layout());
    const Rect close = engine->layout()->items.front().rect;
    EXPECT_TRUE(close.contains(thumb.origin()));
    EXPECT_TRUE(engine->overlay().window().isVisible());
}

TEST_P(EngineTest, PointerRestingOnAThumbnailGetsTheStripAfterTheFirstReadWithoutMoving) {
    desktop.dock().open();
    desktop.application(hostPid())->hung = true;  // the first read finds nothing
    desktop.executor().advance(MissionControlDetector::closedInterval);
    ASSERT_TRUE(engine->thumbs().empty());
    const Point resting = inside(thumbOf("Notes"));
    move(resting);
    EXPECT_FALSE(engine->target());

    desktop.application(hostPid())->hung = false;
    tick();
    ASSERT_TRUE(engine->target());
    EXPECT_EQ(engine->target()->window, elementOf(desktop, windowTitled("Notes")));
}

TEST_P(EngineTest, PointerTravellingFromTheThumbnailToTheStripKeepsIt) {
    openMissionControl();
    const Rect thumb = thumbOf("Notes");
    move(inside(thumb));
    ASSERT_TRUE(engine->layout());
    const Rect close = engine->layout()->items.front().rect;
    // Just outside the thumbnail, on the way up to the button that hangs over its corner.
    move({thumb.minX() + 4, thumb.minY() - 1});
    EXPECT_TRUE(engine->target());
    move(close.mid());
    EXPECT_TRUE(engine->target());
    EXPECT_EQ(engine->overlay().hovered(), OverlayButton::close);
}

TEST_P(EngineTest, PointerLeavingTheThumbnailAndTheSafeZoneDropsTheStrip) {
    openMissionControl();
    const Rect thumb = thumbOf("Notes");
    move(inside(thumb));
    ASSERT_TRUE(engine->target());
    move({thumb.maxX() + 10, thumb.maxY() + 10});
    EXPECT_FALSE(engine->target());
    EXPECT_FALSE(engine->overlay().window().isVisible());
}

TEST_P(EngineTest, ClickingTheCloseButtonSwallowsTheClickAndItsReleaseAndClosesTheWindow) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    const auto close = buttonCentre(OverlayButton::close);
    ASSERT_TRUE(close);
    move(*close);
    EXPECT_FALSE(press(*close));
    EXPECT_FALSE(release(*close));
    EXPECT_EQ(logged("will close window using mouse click, mimicking keyboard"), 1u);
    EXPECT_TRUE(desktop.window(windowTitled("Notes"))->closed);
    EXPECT_FALSE(engine->target());
    EXPECT_TRUE(release(*close)) << "a later release passes again";
}

TEST_P(EngineTest, StripShownAfterAnActionStartsWithNoButtonHovered) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    const auto close = buttonCentre(OverlayButton::close);
    ASSERT_TRUE(close);
    move(*close);
    ASSERT_EQ(engine->overlay().hovered(), OverlayButton::close);
    press(*close);
    release(*close);
    for (int i = 0; i < 4; ++i)
        tick();
    move(inside(thumbOf("Start Page")));
    ASSERT_TRUE(engine->target());
    EXPECT_FALSE(engine->overlay().hovered());
}

TEST_P(EngineTest, EscapeThatPassesTheTapLeavesMissionControl) {
    openMissionControl();
    EXPECT_TRUE(key(KeyCode::escape, 0));
    tick();
    EXPECT_FALSE(engine->active());
}

TEST_P(EngineTest, ClickingAwayFromTheStripReachesMissionControl) {
    openMissionControl();
    const Point point = inside(thumbOf("Notes"));
    move(point);
    EXPECT_TRUE(press(point));
    EXPECT_TRUE(release(point));
}

// Where the Dock draws Mission Control (up to macOS 26), a thumbnail group of its own
// added by hand to the Dock's tree.
class DockTreeEngineTest : public EngineTest {};

TEST_P(DockTreeEngineTest, TwoOverlappingThumbnailsUnderThePointerPickTheSmallerOne) {
    openMissionControl();
    // A second, smaller Dock thumbnail group drawn over Notes' thumbnail.
    const Rect notes = thumbOf("Notes");
    const Rect small{notes.x + 10, notes.y + 10, notes.width / 2, notes.height / 2};
    auto& ax = desktop.accessibility();
    const SimNodeId thumb = ax.addNode(desktop.dock().pid(), {{"AXRole", std::string("AXButton")},
                                                              {"AXTitle", std::string("Notes")},
                                                              {"AXFrame", small}});
    const SimNodeId group =
        ax.addNode(desktop.dock().pid(), {{"AXIdentifier", std::string("mc.windows")},
                                          {"AXChildren", std::vector{ax.nodeElement(thumb)}}});
    const SimNodeId level =
        ax.addNode(desktop.dock().pid(), {{"AXChildren", std::vector{ax.nodeElement(group)}}});
    const SimNodeId container = ax.addNode(
        desktop.dock().pid(),
        {{"AXIdentifier", std::string("mc")}, {"AXChildren", std::vector{ax.nodeElement(level)}}});
    ax.applicationChildren[desktop.dock().pid()].push_back(ax.nodeElement(container));
    for (int i = 0; i < 4; ++i)
        tick();
    ASSERT_EQ(engine->thumbs().back(), small);

    move(small.mid());
    ASSERT_TRUE(engine->layout());
    EXPECT_EQ(engine->layout()->items.front().rect.mid().x, small.minX() - 3);
}

TEST_P(EngineTest, CommandWClosesTheHoveredWindowAndSwallowsTheKeyAndItsRelease) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    EXPECT_FALSE(key(KeyCode::w, command));
    EXPECT_FALSE(keyUp(KeyCode::w));
    EXPECT_TRUE(desktop.window(windowTitled("Notes"))->closed);
    EXPECT_EQ(desktop.systemLog().messages().back().rfind("did close window", 0), 0u);
}

TEST_P(EngineTest, CommandWWithTheShortcutSwitchedOffPassesToMissionControl) {
    Shared::store()->set(Shared::Key::hotkeyDisabled(Hotkey::close), true);
    openMissionControl();
    move(inside(thumbOf("Notes")));
    EXPECT_TRUE(key(KeyCode::w, command));
    EXPECT_FALSE(desktop.window(windowTitled("Notes"))->closed);
}

TEST_P(EngineTest, ShortcutWithNothingHoveredPasses) {
    openMissionControl();
    EXPECT_TRUE(key(KeyCode::m, command));
}

TEST_P(EngineTest, WindowClosedBetweenHoverAndCommandWFailsWithOneLineAndNothingElse) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    ASSERT_TRUE(engine->target());
    desktop.closeWindow(windowTitled("Notes"));
    const std::size_t linesBefore = desktop.systemLog().lines().size();
    const std::size_t openBefore =
        desktop.windowsOf(desktop.window(windowTitled("Start Page"))->pid).size();
    EXPECT_FALSE(key(KeyCode::w, command));
    const auto messages = desktop.systemLog().messages();
    ASSERT_EQ(messages.size(), linesBefore + 1);
    EXPECT_EQ(messages.back().rfind("FAILED to close window", 0), 0u);
    EXPECT_EQ(desktop.windowsOf(desktop.window(windowTitled("Start Page"))->pid).size(),
              openBefore);
    EXPECT_FALSE(engine->target());
}

TEST_P(EngineTest, MissionControlClosingWhileAHitTestIsInFlightLeavesNoOverlay) {
    openMissionControl();
    desktop.eventTap().deliver(SimInput::mouseMoved(inside(thumbOf("Notes"))));
    // The hit-test waits on the hover queue while the main thread learns Mission Control closed.
    desktop.dock().close();
    pollWhileHoverWaits(MissionControlDetector::openInterval);
    ASSERT_FALSE(engine->active());
    settle();
    EXPECT_FALSE(engine->target());
    EXPECT_FALSE(engine->overlay().window().isVisible());
}

TEST_P(EngineTest, ClosingMissionControlStopsTheTapAndForgetsEverything) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    closeMissionControl();
    EXPECT_FALSE(engine->active());
    EXPECT_FALSE(engine->target());
    EXPECT_TRUE(engine->thumbs().empty());
    EXPECT_FALSE(desktop.eventTap().exists());
    EXPECT_EQ(logged("mission control went away"), 1u);
}

TEST_P(EngineTest, DockRestartingWhileMissionControlIsOpenIsFollowed) {
    openMissionControl();
    const Pid before = desktop.dock().pid();
    desktop.dock().restart();
    tick();
    openMissionControl();
    ASSERT_NE(desktop.dock().pid(), before);
    move(inside(thumbOf("Notes")));
    ASSERT_TRUE(engine->target());
    EXPECT_EQ(engine->target()->window, elementOf(desktop, windowTitled("Notes")));
}

TEST_P(EngineTest, AccessibilityGrantRevokedMidSessionClosesTheSessionAndSlowsThePace) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    desktop.trusted = false;
    tick();
    EXPECT_FALSE(engine->active());
    EXPECT_FALSE(engine->target());
    EXPECT_EQ(logged("mission control went away"), 1u);
    EXPECT_DOUBLE_EQ(desktop.executor().timers().back().interval,
                     MissionControlDetector::untrustedInterval);
}

TEST_P(EngineTest, TapFailingToStartIsLoggedOnceAndRetriedOnEveryTick) {
    desktop.eventTap().creationFails = true;
    openMissionControl();
    for (int i = 0; i < 5; ++i)
        tick();
    EXPECT_EQ(logged("could not create event tap (permission missing?)"), 1u);
    EXPECT_FALSE(desktop.eventTap().exists());

    desktop.eventTap().creationFails = false;
    tick();
    EXPECT_EQ(logged("did start listening for events"), 1u);
    EXPECT_TRUE(desktop.eventTap().exists());

    desktop.eventTap().invalidateBySystem();
    desktop.eventTap().creationFails = true;
    tick();
    tick();
    EXPECT_EQ(logged("could not create event tap (permission missing?)"), 2u)
        << "a new run of failures is logged again";
}

TEST_P(EngineTest, HoveringTheAgentsOwnWindowShowsNoStrip) {
    SimApplication agent;
    agent.pid = desktop.ownPid;
    agent.bundleIdentifier = "com.quillmarsh.vistrel";
    agent.name = "Vistrel";
    desktop.addApplication(agent);
    SimWindow panel;
    panel.title = "Vistrel panel";
    panel.frame = {600, 300, 300, 200};
    desktop.addWindow(desktop.ownPid, panel);
    openMissionControl();
    move(inside(thumbOf("Vistrel panel")));
    EXPECT_FALSE(engine->target());
    EXPECT_FALSE(engine->overlay().window().isVisible());
}

TEST_P(EngineTest, HoveringADockElementTakesTheThumbnailsWindowNotTheDock) {
    openMissionControl();
    const Rect notes = thumbOf("Notes");
    const AXElement dockElement = desktop.accessibility().application(desktop.dock().pid());
    desktop.accessibility().hitTestOverride = [dockElement](Point) { return dockElement; };
    move(inside(notes));
    ASSERT_TRUE(engine->target());
    EXPECT_EQ(engine->target()->window, elementOf(desktop, windowTitled("Notes")));
}

TEST_P(EngineTest, HoveringADockElementOverNoThumbnailShowsNoStrip) {
    openMissionControl();
    const AXElement dockElement = desktop.accessibility().application(desktop.dock().pid());
    desktop.accessibility().hitTestOverride = [dockElement](Point) { return dockElement; };
    move({720, 20});
    EXPECT_FALSE(engine->target());
}

TEST_P(EngineTest, PointerStormIssuesNoMoreHitTestsThanTimeAllowsAndEndsOnTheLastPoint) {
    constexpr double hitTestSeconds = 0.008;
    constexpr int moves = 2000;  // 1,000 a second for 2 seconds
    constexpr double step = 0.001;
    openMissionControl();
    desktop.accessibility().hitTestLatency = hitTestSeconds;
    const Rect from = thumbOf("Notes");
    const Rect to = thumbOf("Start Page");
    const std::size_t hitTestsBefore = desktop.accessibility().hitTests();
    const double start = desktop.clock().now();
    const auto hover = desktop.executor().queue(std::string(Engine::hoverQueueLabel));
    std::size_t mostQueued = 0;
    Point last;
    for (int i = 0; i < moves; ++i) {
        const double due = start + i * step;
        if (due > desktop.clock().now()) desktop.executor().advance(due - desktop.clock().now());
        const double f = static_cast<double>(i) / (moves - 1);
        const Rect& thumb = i < moves / 2 ? from : to;
        last = {thumb.minX() + 20 + f * 10, thumb.midY() + (i % 7)};
        desktop.eventTap().deliver(SimInput::mouseMoved(last));
        mostQueued = std::max(mostQueued, hover->pending());
    }
    settle();
    const double elapsed = desktop.clock().now() - start;
    const auto issued = desktop.accessibility().hitTests() - hitTestsBefore;
    EXPECT_LE(issued, static_cast<std::size_t>(elapsed / hitTestSeconds) + 1);
    EXPECT_GE(issued, 100u) << "the pointer was still followed";
    EXPECT_LE(mostQueued, 2u) << "at most one hit-test and one thumbnail read wait";
    ASSERT_TRUE(engine->target());
    EXPECT_EQ(engine->target()->window, elementOf(desktop, windowTitled("Start Page")));
    EXPECT_TRUE(engine->overlay().window().isVisible());
}

INSTANTIATE_ON_EVERY_PRESENTATION(EngineTest);
INSTANTIATE_TEST_SUITE_P(DockPresentations, DockTreeEngineTest,
                         ::testing::Values(SimPresentation::hitTestWindow,
                                           SimPresentation::hitTestThumbnail),
                         PresentationName{});

}  // namespace
}  // namespace vistrel::testing
