#include <gtest/gtest.h>

#include "base/hotkey.h"
#include "layouts/layout_store.h"
#include "layouts_scenario.h"
#include "platform/sim/sim_event_tap_port.h"
#include "settings/shared.h"
#include "support/presented.h"

namespace vistrel::testing {
namespace {

using Item = ShelfLayout::Item;
// The Layouts feature inside the engine, on each way a Mac presents Mission Control.
class LayoutsEngineTest : public Presented<LayoutsScenario> {};

TEST_P(LayoutsEngineTest, OpeningMissionControlShowsTheFoldedShelf) {
    openMissionControl();
    EXPECT_TRUE(layouts().isOpen());
    EXPECT_TRUE(layouts().shelf().isVisible());
    EXPECT_EQ(layouts().shelfFrame(), layouts().layout()->pill);
}

TEST_P(LayoutsEngineTest, EscapeWhileComposingCancelsItAndIsSwallowed) {
    openMissionControl();
    unfoldShelf();
    clickCell(Item::layoutTemplate(0));
    EXPECT_FALSE(key(KeyCode::escape, 0));
    EXPECT_FALSE(layouts().isComposing());
    EXPECT_EQ(logged("layouts: composing cancelled"), 1u);
    EXPECT_TRUE(layouts().isOpen());
}

TEST_P(LayoutsEngineTest, ReturnWhileComposingFinishesWithThePickedWindows) {
    openMissionControl();
    unfoldShelf();
    clickCell(Item::layoutTemplate(2));
    clickWindow("Notes");
    EXPECT_FALSE(key(KeyCode::returnKey, 0));
    desktop.executor().advance(2);
    EXPECT_EQ(logged("layouts: saved \"Notes\" from Thirds"), 1u);
    EXPECT_EQ(frameOf("Notes"), UnitRect({0, 0, 1.0 / 3.0, 1}).frame(usableArea(), 0));
}

TEST_P(LayoutsEngineTest, AClickOnAThumbnailWhileComposingPicksItAndIsSwallowed) {
    openMissionControl();
    unfoldShelf();
    clickCell(Item::layoutTemplate(0));
    hover("Notes");
    EXPECT_FALSE(press(inside(thumbOf("Notes"))));
    ASSERT_TRUE(layouts().compose()->picks[0]);
    EXPECT_EQ(layouts().badges().shown(), 1u);
}

TEST_P(LayoutsEngineTest, TheShelfTakesThePointerAndTheStripGoes) {
    openMissionControl();
    hover("Notes");
    ASSERT_TRUE(engine->target());
    unfoldShelf();
    EXPECT_FALSE(engine->target());
    EXPECT_FALSE(engine->overlay().window().isVisible());
}

TEST_P(LayoutsEngineTest, HoldingOptionMarksTheShelfForDeleting) {
    openMissionControl();
    desktop.eventTap().deliver(SimInput::flagsChanged(ModifierFlag::option));
    settle();
    EXPECT_TRUE(layouts().shelf().view().state().optionHeld);
    desktop.eventTap().deliver(SimInput::flagsChanged(0));
    settle();
    EXPECT_FALSE(layouts().optionHeld());
}

// The shelf does not unfold under a window being dragged, so the drag starts on a thumbnail
// reaching down to just above the unfolded shelf.
TEST_P(LayoutsEngineTest, DraggingAThumbnailOntoATemplateSlotPlacesTheWindowThere) {
    openMissionControl();
    unfoldShelf();
    const Rect shelf = layouts().layout()->frame;
    const Point grip{shelf.midX(), shelf.minY() - 10};
    const auto thumbnail = desktop.dock().thumbnailAt(grip);
    ASSERT_TRUE(thumbnail) << "no thumbnail just above the shelf";
    move(grip);
    tick();
    settle();
    ASSERT_TRUE(engine->target());
    ASSERT_TRUE(layouts().unfolded());
    EXPECT_TRUE(press(grip));

    ShelfLayout::Cell grid;
    for (const auto& cell : layouts().layout()->cells) {
        if (cell.item == Item::layoutTemplate(4)) grid = cell;
    }
    const Point bottomRight{grid.screen.minX() + grid.screen.width * 0.75,
                            grid.screen.minY() + grid.screen.height * 0.75};
    desktop.eventTap().deliver(SimInput::mouseDragged(bottomRight));
    desktop.executor().mainQueue().runOne();
    EXPECT_EQ(layouts().dropSlot(), (SlotRef{4, 3}));
    release(bottomRight);
    desktop.executor().advance(2);
    EXPECT_EQ(logged("layouts: window dropped on Grid slot 4"), 1u);
    EXPECT_EQ(desktop.window(thumbnail->window)->frame,
              UnitRect({0.5, 0.5, 0.5, 0.5}).frame(usableArea(), 0));
}

TEST_P(LayoutsEngineTest, CommandDigitBeyondTheSavedLayoutsPassesOn) {
    openMissionControl();
    EXPECT_TRUE(key(18, ModifierFlag::command));
}

INSTANTIATE_ON_EVERY_PRESENTATION(LayoutsEngineTest);

}  // namespace
}  // namespace vistrel::testing
