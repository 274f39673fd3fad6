#include <gtest/gtest.h>

#include "layouts_scenario.h"
#include "platform/sim/sim_event_tap_port.h"
#include "support/presented.h"

namespace vistrel::testing {
namespace {

// The system holds its input while the event tap's callback runs: a release and a change of
// the modifier keys decide nothing there, so the shelf they redraw waits for the next turn.
class TapTurnTest : public Presented<LayoutsScenario> {
  protected:
    SimQueue& mainQueue() { return desktop.executor().mainQueue(); }
};

TEST_P(TapTurnTest, HoldingOptionRedrawsTheShelfOnTheNextTurnNotInsideTheTapCallback) {
    openMissionControl();
    EXPECT_TRUE(desktop.eventTap().deliver(SimInput::flagsChanged(ModifierFlag::option)));
    EXPECT_FALSE(layouts().optionHeld()) << "the shelf was redrawn inside the tap's callback";
    mainQueue().runOne();
    EXPECT_TRUE(layouts().shelf().view().state().optionHeld);
}

TEST_P(TapTurnTest, AReleaseDropsTheDraggedWindowOnTheNextTurnNotInsideTheTapCallback) {
    openMissionControl();
    unfoldShelf();
    const Rect shelf = layouts().layout()->frame;
    const Point grip{shelf.midX(), shelf.minY() - 10};
    move(grip);
    tick();
    settle();
    ASSERT_TRUE(press(grip));
    const Rect slot = layouts().layout()->cells.front().screen;
    const Point onSlot{slot.midX(), slot.midY()};
    desktop.eventTap().deliver(SimInput::mouseDragged(onSlot));
    mainQueue().runOne();
    ASSERT_TRUE(layouts().pressDragging());

    EXPECT_TRUE(desktop.eventTap().deliver(SimInput::mouseUp(onSlot)));
    EXPECT_TRUE(layouts().pressDragging()) << "the drop was handled inside the tap's callback";
    mainQueue().runOne();
    EXPECT_FALSE(layouts().pressDragging());
}

INSTANTIATE_ON_EVERY_PRESENTATION(TapTurnTest);

}  // namespace
}  // namespace vistrel::testing
