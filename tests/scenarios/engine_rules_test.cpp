#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/hotkey.h"
#include "engine_scenario.h"
#include "fake_engine_layouts.h"
#include "platform/sim/sim_event_tap_port.h"
#include "support/presented.h"
#include "tracking/mission_control_detector.h"

namespace vistrel::testing {
namespace {

constexpr std::uint64_t command = ModifierFlag::command;
// The engine's first detector tick comes this long after start().
constexpr double firstTickSeconds = 0.05;
// Somewhere in the spaces bar at the top of the screen, over no thumbnail.
constexpr Point overNoThumbnail{720, 20};

// The engine's own rules, with a Layouts feature that never takes the pointer unless the
// test says so, so that each rule can be watched on its own, on each way a Mac presents
// Mission Control.
class EngineRulesTest : public Presented<EngineScenario> {
  protected:
    EngineRulesTest() : EngineRulesTest(new FakeEngineLayouts) {}

    // One tick; answers whether it read the thumbnails' frames.
    bool tickReads() {
        const std::size_t before = desktop.accessibility().attributeReads("AXFrame");
        tick();
        return desktop.accessibility().attributeReads("AXFrame") > before;
    }

    FakeEngineLayouts& layouts;

  private:
    explicit EngineRulesTest(FakeEngineLayouts* fake)
        : Presented(std::unique_ptr<EngineLayouts>(fake)), layouts(*fake) {}
};

TEST_P(EngineRulesTest, TheFirstTickComesFiftyMillisecondsAfterStart) {
    engine = Engine::make(std::make_unique<FakeEngineLayouts>());
    desktop.dock().open();
    engine->start();
    desktop.executor().advance(firstTickSeconds - 0.001);
    EXPECT_FALSE(engine->active());
    desktop.executor().advance(0.001);
    EXPECT_TRUE(engine->active());
}

TEST_P(EngineRulesTest, ThumbnailsAreReadOnEveryTickForSixteenTicksThenOnEveryFourth) {
    const std::size_t before = desktop.accessibility().attributeReads("AXFrame");
    openMissionControl();
    ASSERT_GT(desktop.accessibility().attributeReads("AXFrame"), before)
        << "the opening tick reads them";
    std::vector<int> readingTicks;
    for (int tick = 1; tick <= 24; ++tick) {
        if (tickReads()) readingTicks.push_back(tick);
    }
    EXPECT_EQ(readingTicks,
              (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 20, 24}));
}

TEST_P(EngineRulesTest, WindowsMovedStartsTheCountOfTicksAgain) {
    openMissionControl();
    for (int tick = 1; tick <= 17; ++tick)
        this->tick();
    ASSERT_FALSE(tickReads()) << "tick 18 is between two fourth ticks";
    move(inside(thumbOf("Notes")));
    ASSERT_TRUE(engine->target());

    layouts.onWindowsMoved();
    EXPECT_FALSE(engine->target());
    EXPECT_TRUE(tickReads());
    EXPECT_TRUE(tickReads());
    EXPECT_TRUE(tickReads());
}

TEST_P(EngineRulesTest, SafeZoneKeepsTheStripOutsideTheThumbnailAndOutsideEveryButton) {
    openMissionControl();
    const Rect thumb = thumbOf("Notes");
    move(inside(thumb));
    ASSERT_TRUE(engine->layout());
    const Rect close = engine->layout()->items.front().rect;
    // In the zone's padding just above the close button, on the way to it.
    const Point padding{close.midX(), close.minY() - 1};
    ASSERT_FALSE(thumb.contains(padding));
    for (const auto& item : engine->layout()->items)
        ASSERT_FALSE(item.rect.contains(padding));

    move(padding);
    EXPECT_TRUE(engine->target());
    EXPECT_TRUE(engine->overlay().window().isVisible());
    EXPECT_FALSE(engine->overlay().hovered());
}

TEST_P(EngineRulesTest, HitTestFromAnEarlierOpeningIsDroppedEvenWithThePointerBackOnItsPoint) {
    openMissionControl();
    const Point point = inside(thumbOf("Notes"));
    auto& accessibility = desktop.accessibility();
    auto dockHitTest = accessibility.hitTestOverride;
    auto hover = desktop.executor().queue(std::string(Engine::hoverQueueLabel));
    bool staged = false;
    accessibility.hitTestOverride = [&](Point at) {
        if (!staged) {
            staged = true;
            // While this hit-test runs: Mission Control closes and opens again, the new
            // opening's thumbnails are read, and the pointer comes back to the same point
            // while the shelf holds it, so that no new look-up starts.
            desktop.dock().close();
            pollWhileHoverWaits(MissionControlDetector::openInterval);
            desktop.dock().open();
            // The detector reads the tree on its own queue, then tells the engine it opened.
            pollWhileHoverWaits(MissionControlDetector::closedInterval);
            hover->runOne();
            desktop.executor().mainQueue().drain();
            layouts.claimsPointer = true;
            desktop.eventTap().deliver(SimInput::mouseMoved(point));
            // The move is handled on its own turn of the main queue, still claimed.
            desktop.executor().mainQueue().drain();
            layouts.claimsPointer = false;
        }
        return dockHitTest(at);
    };
    desktop.eventTap().deliver(SimInput::mouseMoved(point));
    settle();
    ASSERT_TRUE(staged);
    ASSERT_TRUE(engine->active());
    ASSERT_FALSE(engine->thumbs().empty());
    ASSERT_EQ(engine->lastReading().host, host()) << "the new opening was read";
    EXPECT_FALSE(engine->target());
    EXPECT_FALSE(engine->overlay().window().isVisible());
}

TEST_P(EngineRulesTest, ShelfShownUnderThePointWhileItIsLookedUpWinsOverTheStrip) {
    openMissionControl();
    const Point point = inside(thumbOf("Notes"));
    desktop.eventTap().deliver(SimInput::mouseMoved(point));
    layouts.shelf = Rect{point.x - 50, point.y - 20, 100, 40};
    settle();
    EXPECT_FALSE(engine->target());
    EXPECT_FALSE(engine->overlay().window().isVisible());
}

TEST_P(EngineRulesTest, HoveringAWindowOfTheDockTakesTheThumbnailsWindowInstead) {
    openMissionControl();
    auto& ax = desktop.accessibility();
    const Pid dock = desktop.dock().pid();
    const SimNodeId closeButton = ax.addNode(dock, {{"AXRole", std::string("AXButton")}});
    const SimNodeId window = ax.addNode(dock, {{"AXRole", std::string("AXWindow")},
                                               {"AXCloseButton", ax.nodeElement(closeButton)}});
    const AXElement dockWindow = ax.nodeElement(window);
    ax.hitTestOverride = [dockWindow](Point) { return dockWindow; };
    move(inside(thumbOf("Notes")));
    ASSERT_TRUE(engine->target());
    EXPECT_NE(engine->target()->window, dockWindow);
    EXPECT_EQ(engine->target()->window, ax.windowElement(windowTitled("Notes")));
}

TEST_P(EngineRulesTest, ARepeatedPositionCostsNoLookUp) {
    openMissionControl();
    const Point point = inside(thumbOf("Notes"));
    move(point);
    ASSERT_TRUE(engine->target());
    const std::size_t hitTests = desktop.accessibility().hitTests();
    move(point);
    EXPECT_EQ(desktop.accessibility().hitTests(), hitTests);
}

TEST_P(EngineRulesTest, WindowsAreEnumeratedOncePerOpeningNotPerMove) {
    openMissionControl();
    const std::size_t opening = desktop.accessibility().attributeReads("AXWindows");
    ASSERT_GT(opening, 0u) << "the opening enumerates the windows to tie the thumbnails";
    for (int tick = 0; tick < 20; ++tick)
        this->tick();
    for (const char* title : {"Notes", "Start Page", "Downloads"}) {
        move(overNoThumbnail);
        move(inside(thumbOf(title)));
    }
    EXPECT_EQ(desktop.accessibility().attributeReads("AXWindows"), opening);

    closeMissionControl();
    openMissionControl();
    EXPECT_EQ(desktop.accessibility().attributeReads("AXWindows"), 2 * opening)
        << "a new opening enumerates them afresh";
}

TEST_P(EngineRulesTest, AfterAnActionTheSamePointIsLookedUpAfresh) {
    openMissionControl();
    const Point point = inside(thumbOf("Notes"));
    move(point);
    ASSERT_TRUE(engine->target());
    key(KeyCode::w, command);
    ASSERT_FALSE(engine->target());
    const std::size_t hitTests = desktop.accessibility().hitTests();
    move(point);
    EXPECT_EQ(desktop.accessibility().hitTests(), hitTests + 1);
}

TEST_P(EngineRulesTest, MovingOntoAnotherThumbnailDropsTheStripBeforeTheLookUpAnswers) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    ASSERT_TRUE(engine->target());
    desktop.eventTap().deliver(SimInput::mouseMoved(inside(thumbOf("Start Page"))));
    desktop.executor().mainQueue().runOne();
    EXPECT_FALSE(engine->target());
    EXPECT_FALSE(engine->overlay().window().isVisible());
    settle();
    ASSERT_TRUE(engine->target());
    EXPECT_EQ(engine->target()->window,
              desktop.accessibility().windowElement(windowTitled("Start Page")));
}

TEST_P(EngineRulesTest, ResultForAPointThePointerHasLeftIsDropped) {
    openMissionControl();
    // Each move gets its turn of the main queue, so the first one's look-up is under way on
    // the hover queue when the pointer leaves.
    desktop.eventTap().deliver(SimInput::mouseMoved(inside(thumbOf("Notes"))));
    desktop.executor().mainQueue().runOne();
    desktop.eventTap().deliver(SimInput::mouseMoved(overNoThumbnail));
    desktop.executor().mainQueue().runOne();
    settle();
    EXPECT_FALSE(engine->target());
    EXPECT_FALSE(engine->overlay().window().isVisible());
}

INSTANTIATE_ON_EVERY_PRESENTATION(EngineRulesTest);

}  // namespace
}  // namespace vistrel::testing
