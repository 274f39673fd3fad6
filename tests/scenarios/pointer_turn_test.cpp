#include <gtest/gtest.h>

#include "layouts_scenario.h"
#include "platform/sim/sim_event_tap_port.h"
#include "support/presented.h"

namespace vistrel::testing {
namespace {

// The system holds its input while the event tap's callback runs, so a pointer move is only
// recorded there and handled on the next turn of the main queue, whichever way the Mac
// presents Mission Control.
class PointerTurnTest : public Presented<LayoutsScenario> {
  protected:
    // Delivers a move through the tap without running anything the tap asked for.
    void deliverMove(Point point) { desktop.eventTap().deliver(SimInput::mouseMoved(point)); }
    SimQueue& mainQueue() { return desktop.executor().mainQueue(); }
    Point onShelf() {
        const Rect pill = layouts().layout()->pill;
        return {pill.midX(), pill.midY()};
    }
};

TEST_P(PointerTurnTest, AMoveOntoTheShelfUnfoldsItOnTheNextTurnNotInsideTheTapCallback) {
    openMissionControl();
    ASSERT_FALSE(layouts().unfolded());

    deliverMove(onShelf());
    EXPECT_FALSE(layouts().unfolded()) << "the shelf was drawn inside the tap's callback";

    mainQueue().runOne();
    EXPECT_TRUE(layouts().unfolded());
}

TEST_P(PointerTurnTest, MovesWaitingForTheSameTurnAskForOneTurnAndTheNewestIsHandled) {
    openMissionControl();
    deliverMove(inside(thumbOf("Notes")));
    deliverMove(inside(thumbOf("Inbox – iCloud")));
    deliverMove(inside(thumbOf("Start Page")));
    EXPECT_EQ(mainQueue().pending(), 1u);

    settle();
    ASSERT_TRUE(engine->target());
    EXPECT_EQ(engine->target()->window,
              desktop.accessibility().windowElement(windowTitled("Start Page")));
}

// The click follows the move in the order the user made them: the pointer has left the
// strip, so the click is not one on its close button.
TEST_P(PointerTurnTest, AClickHandlesTheMoveBeforeItSoItNeverActsWhereThePointerWas) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    const auto close = buttonCentre(OverlayButton::close);
    ASSERT_TRUE(close);

    deliverMove(inside(thumbOf("Start Page")));
    EXPECT_TRUE(desktop.eventTap().deliver(SimInput::mouseDown(*close)));
    settle();

    EXPECT_FALSE(desktop.window(windowTitled("Notes"))->closed);
}

INSTANTIATE_ON_EVERY_PRESENTATION(PointerTurnTest);

}  // namespace
}  // namespace vistrel::testing
