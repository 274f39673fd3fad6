#include <gtest/gtest.h>

#include "layouts_scenario.h"
#include "platform/sim/sim_event_tap_port.h"
#include "platform/sim/sim_window_host.h"
#include "support/presented.h"

namespace vistrel::testing {
namespace {

// The system holds its input while the event tap's callback runs: a release and a change of
// the modifier keys decide nothing there, so the shelf they redraw waits for the next turn.
class TapTurnTest : public Presented<LayoutsScenario> {
  protected:
    SimQueue& mainQueue() { return desktop.executor().mainQueue(); }
    // The simulated window behind the agent's window of this level.
    const SimAgentWindow* windowAtLevel(int level) {
        for (const SimAgentWindow* window : desktop.windowHost().windows()) {
            if (window->level() == level) return window;
        }
        ADD_FAILURE() << "no window at level " << level;
        return nullptr;
    }
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

// A press must be decided in the callback; what it shows is not.
TEST_P(TapTurnTest, AClickOnTheCloseButtonHidesTheStripOnTheNextTurnNotInsideTheTapCallback) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    const auto close = buttonCentre(OverlayButton::close);
    ASSERT_TRUE(close);
    const SimAgentWindow* strip = windowAtLevel(AgentWindowLevel::overlay);
    ASSERT_TRUE(strip && strip->isVisible());

    EXPECT_FALSE(desktop.eventTap().deliver(SimInput::mouseDown(*close)));
    EXPECT_TRUE(strip->isVisible()) << "the strip was hidden inside the tap's callback";
    EXPECT_FALSE(engine->overlay().window().isVisible()) << "it answers what it is about to be";
    settle();
    EXPECT_FALSE(strip->isVisible());
}

TEST_P(TapTurnTest, AClickOnATemplateRedrawsTheShelfOnTheNextTurnNotInsideTheTapCallback) {
    openMissionControl();
    unfoldShelf();
    const SimAgentWindow* shelf = windowAtLevel(AgentWindowLevel::shelf);
    ASSERT_TRUE(shelf);
    Point centre;
    for (const auto& cell : layouts().layout()->cells) {
        if (cell.item == ShelfLayout::Item::layoutTemplate(0)) centre = cell.rect.mid();
    }
    move(centre);
    const int drawn = shelf->contentUpdates();

    EXPECT_FALSE(desktop.eventTap().deliver(SimInput::mouseDown(centre)));
    EXPECT_EQ(shelf->contentUpdates(), drawn) << "the shelf was drawn inside the tap's callback";
    settle();
    EXPECT_TRUE(layouts().isComposing());
    EXPECT_GT(shelf->contentUpdates(), drawn);
}

INSTANTIATE_ON_EVERY_PRESENTATION(TapTurnTest);

}  // namespace
}  // namespace vistrel::testing
