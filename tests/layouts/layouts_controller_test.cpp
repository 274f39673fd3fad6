#include <gtest/gtest.h>

#include "base/hotkey.h"
#include "layouts_controller_fixture.h"

namespace vistrel::testing {
namespace {

using Item = ShelfLayout::Item;

TEST_F(LayoutsControllerTest, OpeningShowsTheFoldedShelfOnTheScreenUnderThePointer) {
    desktop.addScreenToTheRight({1920, 1080});
    desktop.eventTap().setPointer({2000, 300});
    open();
    ASSERT_TRUE(controller->isOpen());
    ASSERT_TRUE(controller->screen());
    EXPECT_EQ(controller->screen()->frame.x, 1440);
    ASSERT_TRUE(controller->layout());
    EXPECT_TRUE(controller->state().folded);
    EXPECT_EQ(controller->shelfFrame(), controller->layout()->pill);
    EXPECT_TRUE(controller->shelf().isVisible());
    EXPECT_GT(controller->layout()->frame.minX(), 1440);
}

TEST_F(LayoutsControllerTest, OpeningLoadsTheSavedLayouts) {
    storeLayout("Mail", "com.apple.mail");
    storeLayout("Notes", "com.apple.Notes");
    open();
    ASSERT_EQ(controller->saved().size(), 2u);
    EXPECT_EQ(controller->savedCount(), 2u);
    EXPECT_EQ(controller->saved()[1].name, "Notes");
}

TEST_F(LayoutsControllerTest, OpeningDoesNothingWhenTheFeatureIsOff) {
    setPreference(PreferenceKey::layoutsEnabled, false);
    open();
    EXPECT_FALSE(controller->isOpen());
    EXPECT_FALSE(controller->shelf().isVisible());
    EXPECT_FALSE(controller->pointerMoved({720, 800}));
}

TEST_F(LayoutsControllerTest, WithTheShelfSwitchedOffTheFeatureIsOpenWithoutAShelf) {
    setPreference(PreferenceKey::layoutsShelf, false);
    open();
    EXPECT_TRUE(controller->isOpen());
    EXPECT_FALSE(controller->layout());
    EXPECT_FALSE(controller->shelfFrame());
    EXPECT_FALSE(controller->shelf().isVisible());
}

TEST_F(LayoutsControllerTest, ThePointerInThePillBandUnfoldsTheShelfLimitsIncluded) {
    open();
    const Rect pill = controller->layout()->pill;
    controller->pointerMoved({pill.minX() - 24, pill.maxY() + 140});
    EXPECT_TRUE(controller->unfolded());
    EXPECT_FALSE(controller->state().folded);
    EXPECT_EQ(controller->shelfFrame(), controller->layout()->frame);
}

TEST_F(LayoutsControllerTest, ThePointerJustOutsideThePillBandLeavesTheShelfFolded) {
    open();
    const Rect pill = controller->layout()->pill;
    controller->pointerMoved({pill.minX() - 24.5, pill.midY()});
    EXPECT_FALSE(controller->unfolded());
    controller->pointerMoved({pill.midX(), pill.minY() - 10.5});
    EXPECT_FALSE(controller->unfolded());
}

TEST_F(LayoutsControllerTest, LeavingTheKeepOpenZoneFoldsTheShelfAgain) {
    open();
    unfold();
    controller->pointerMoved({720, 100});
    EXPECT_FALSE(controller->unfolded());
}

TEST_F(LayoutsControllerTest, TheUnfoldedShelfTakesThePointerAndHoversTheCellUnderIt) {
    storeLayout("Mail", "com.apple.mail");
    open();
    unfold();
    EXPECT_TRUE(controller->pointerMoved(cellFor(Item::saved(0)).rect.mid()));
    EXPECT_EQ(controller->hovered(), Item::saved(0));
    EXPECT_EQ(controller->shelf().view().state().hovered, Item::saved(0));
}

TEST_F(LayoutsControllerTest, ThePointerLeavingTheShelfClearsTheHoverAndIsNotTaken) {
    open();
    unfold();
    controller->pointerMoved(cellFor(Item::save()).rect.mid());
    EXPECT_FALSE(controller->pointerMoved({720, 200}));
    EXPECT_FALSE(controller->hovered());
}

TEST_F(LayoutsControllerTest, ThePointerOnThePillUnfoldsTheShelfAndIsTaken) {
    open();
    EXPECT_TRUE(controller->pointerMoved(controller->layout()->pill.mid()));
    EXPECT_TRUE(controller->unfolded());
}

TEST_F(LayoutsControllerTest, ClickingATemplateStartsComposingWithItsCaption) {
    open();
    unfold();
    click(Item::layoutTemplate(0));
    ASSERT_TRUE(controller->isComposing());
    EXPECT_EQ(logged("layouts: composing Halves"), 1u);
    EXPECT_TRUE(controller->caption().isVisible());
    EXPECT_EQ(controller->caption().view().message(),
              "Halves: click the window for slot 1 of 2. Esc cancels.");
    EXPECT_EQ(controller->shelf().view().state().composeTemplate, 0);
}

TEST_F(LayoutsControllerTest, ComposingKeepsTheShelfUnfoldedWhereverThePointerGoes) {
    open();
    unfold();
    click(Item::layoutTemplate(0));
    controller->pointerMoved({720, 100});
    EXPECT_TRUE(controller->unfolded());
}

TEST_F(LayoutsControllerTest, ClickingTheComposedTemplateWithNothingPickedEndsWithNoWindows) {
    open();
    unfold();
    click(Item::layoutTemplate(0));
    click(Item::layoutTemplate(0));
    EXPECT_FALSE(controller->isComposing());
    EXPECT_EQ(logged("layouts: composing ended with no windows"), 1u);
    EXPECT_FALSE(controller->caption().isVisible());
}

TEST_F(LayoutsControllerTest, APickedWindowGetsABadgeAndTheCaptionMovesOn) {
    open();
    unfold();
    click(Item::layoutTemplate(0));
    controller->pick(pickOf("Notes"));
    EXPECT_EQ(controller->badges().shown(), 1u);
    EXPECT_EQ(controller->caption().view().message(),
              "Halves: click the window for slot 2 of 2, or click Halves again to finish. Esc "
              "cancels.");
    EXPECT_EQ(controller->shelf().view().state().composeApps[0], "com.apple.Notes");
}

TEST_F(LayoutsControllerTest, HalvesWithAWindowThenThirdsKeepsThatWindowInSlotOne) {
    open();
    unfold();
    click(Item::layoutTemplate(0));
    controller->pick(pickOf("Notes"));
    click(Item::layoutTemplate(2));
    ASSERT_TRUE(controller->compose());
    EXPECT_EQ(controller->compose()->templateIndex, 2);
    ASSERT_TRUE(controller->compose()->picks[0]);
    EXPECT_EQ(controller->compose()->picks[0]->window, pickOf("Notes").window);
    EXPECT_EQ(logged("layouts: composing Thirds"), 1u);
}

TEST_F(LayoutsControllerTest, PickingTheSameWindowTwiceEmptiesItsSlot) {
    open();
    unfold();
    click(Item::layoutTemplate(0));
    controller->pick(pickOf("Notes"));
    controller->pick(pickOf("Notes"));
    EXPECT_TRUE(controller->compose()->empty());
    EXPECT_EQ(controller->badges().shown(), 0u);
}

TEST_F(LayoutsControllerTest, FillingTheLastSlotFinishesAndSavesTheLayout) {
    open();
    unfold();
    click(Item::layoutTemplate(0));
    controller->pick(pickOf("Notes"));
    controller->pick(pickOf("Start Page"));
    EXPECT_FALSE(controller->isComposing());
    settle();
    EXPECT_EQ(logged("layouts: saved \"Notes · Safari\" from Halves"), 1u);
    EXPECT_EQ(LayoutStore::load(*Shared::store()).size(), 1u);
}

TEST_F(LayoutsControllerTest, OptionClickOnASavedLayoutDeletesItWithoutRestoring) {
    storeLayout("Mail", "com.apple.mail");
    storeLayout("Notes", "com.apple.Notes");
    open();
    unfold();
    click(Item::saved(0), ModifierFlag::option);
    settle();
    EXPECT_EQ(logged("layouts: deleted \"Mail\""), 1u);
    EXPECT_EQ(logged("layouts: restoring \"Mail\""), 0u);
    EXPECT_EQ(toast(), "Deleted \u201CMail\u201D");
    ASSERT_EQ(controller->saved().size(), 1u);
    EXPECT_EQ(LayoutStore::load(*Shared::store()).front().name, "Notes");
    EXPECT_EQ(controller->layout()->cells.front().item, Item::saved(0));
}

TEST_F(LayoutsControllerTest, APlainClickWhileComposingCancelsTheComposeAndRestores) {
    storeLayout("Mail", "com.apple.mail");
    open();
    unfold();
    click(Item::layoutTemplate(0));
    click(Item::saved(0));
    EXPECT_FALSE(controller->isComposing());
    EXPECT_EQ(logged("layouts: composing cancelled"), 1u);
    EXPECT_EQ(logged("layouts: restoring \"Mail\""), 1u);
}

TEST_F(LayoutsControllerTest, RestoringALayoutWithNoneOfItsWindowsOpenSaysSo) {
    storeLayout("Gone", "com.example.gone");
    open();
    controller->restore(0);
    settle();
    EXPECT_EQ(toast(), "None of its windows are open");
}

TEST_F(LayoutsControllerTest, RestoringALayoutWhoseFileIsGoneSaysSoInTheToast) {
    SavedLayout layout;
    layout.id = UUID::random();
    layout.name = "Writing";
    layout.windows.push_back({"com.apple.Notes",
                              "Notes",
                              "draft.txt",
                              {0, 0, 0.5, 1},
                              std::nullopt,
                              "file:///nowhere/vistrel-test/draft.txt"});
    LayoutStore::add(*Shared::store(), layout);
    for (const SimWindow& window : desktop.windows()) {
        if (window.title == "Notes") desktop.closeWindow(window.id);
    }
    open();
    controller->restore(0);
    settle();
    EXPECT_EQ(toast(), "1 document no longer exists");
}

TEST_F(LayoutsControllerTest, ASavedLayoutIndexOutOfRangeIsIgnored) {
    storeLayout("Mail", "com.apple.mail");
    open();
    controller->restore(1);
    controller->clicked(Item::saved(3), false);
    controller->clicked(Item::saved(3), true);
    settle();
    EXPECT_EQ(controller->saved().size(), 1u);
    for (const std::string& line : desktop.systemLog().messages())
        EXPECT_EQ(line.find("layouts: restoring"), std::string::npos) << line;
}

TEST_F(LayoutsControllerTest, TheSaveCellStoresTheCurrentWindowsAndConfirms) {
    open();
    unfold();
    click(Item::save());
    settle();
    const auto stored = LayoutStore::load(*Shared::store());
    ASSERT_EQ(stored.size(), 1u);
    EXPECT_EQ(stored.front().windows.size(), 6u);
    EXPECT_EQ(logged("layouts: saved the current windows as \"" + stored.front().name + "\" (6)"),
              1u);
    EXPECT_EQ(toast(), "Saved \u201C" + stored.front().name + "\u201D");
    EXPECT_EQ(controller->layout()->cells.front().item, Item::saved(0));
}

TEST_F(LayoutsControllerTest, SavingWithNoWindowsOpenSaysSo) {
    for (const SimWindow& window : std::vector<SimWindow>(desktop.windows()))
        desktop.closeWindow(window.id);
    open();
    unfold();
    click(Item::save());
    settle();
    EXPECT_EQ(toast(), "No windows to save");
    EXPECT_TRUE(LayoutStore::load(*Shared::store()).empty());
}

TEST_F(LayoutsControllerTest, APressBecomesADragOnlyBeyondSixPoints) {
    open();
    controller->recordPress(pickOf("Notes"), {400, 300});
    EXPECT_FALSE(controller->mouseDragged({406, 300}));
    EXPECT_FALSE(controller->pressDragging());
    EXPECT_TRUE(controller->mouseDragged({406.1, 300}));
    EXPECT_TRUE(controller->pressDragging());
}

TEST_F(LayoutsControllerTest, DraggingWithoutAPressIsNotTaken) {
    open();
    EXPECT_FALSE(controller->mouseDragged({500, 500}));
}

TEST_F(LayoutsControllerTest, DraggingOverATemplateSlotShowsItAsTheDropSlot) {
    open();
    unfold();
    const Point rightSlot = inTemplate(0, 0.75, 0.5);
    drag("Notes", rightSlot);
    EXPECT_EQ(controller->dropSlot(), (SlotRef{0, 1}));
    EXPECT_EQ(controller->shelf().view().state().dropSlot, (SlotRef{0, 1}));
}

TEST_F(LayoutsControllerTest, DroppingAWindowOnASlotArrangesItThere) {
    open();
    unfold();
    const Point rightSlot = inTemplate(0, 0.75, 0.5);
    drag("Notes", rightSlot);
    controller->mouseUp(rightSlot);
    EXPECT_FALSE(controller->dropSlot());
    EXPECT_FALSE(controller->pressDragging());
    EXPECT_EQ(logged("layouts: window dropped on Halves slot 2"), 1u);
    settle();
    const Rect visible = controller->screen()->visible;
    EXPECT_EQ(pickOf("Notes").thumb, UnitRect({0.5, 0, 0.5, 1}).frame(visible, 0));
}

TEST_F(LayoutsControllerTest, AReleaseAfterAPlainPressDropsNothing) {
    open();
    unfold();
    const ShelfLayout::Cell halves = cellFor(Item::layoutTemplate(0));
    controller->recordPress(pickOf("Notes"), halves.screen.mid());
    controller->mouseUp(halves.screen.mid());
    settle();
    for (const std::string& line : desktop.systemLog().messages())
        EXPECT_EQ(line.find("dropped"), std::string::npos) << line;
}

TEST_F(LayoutsControllerTest, TheDebugGeometryIsRecordedWhileOpenAndRemovedOnClose) {
    setPreference(PreferenceKey::layoutsDebugGeometry, true);
    open();
    const std::string key(PreferenceKey::layoutsDebugShelf);
    const auto record = Shared::store()->object(key).dictionary();
    ASSERT_TRUE(record);
    EXPECT_TRUE(record->contains("frame"));
    EXPECT_EQ(record->at("cells").array()->size(), controller->layout()->cells.size());
    controller->missionControlClosed();
    EXPECT_TRUE(Shared::store()->object(key).isNone());
}

TEST_F(LayoutsControllerTest, WithoutTheDebugSettingNoGeometryIsRecorded) {
    open();
    EXPECT_TRUE(Shared::store()->object(std::string(PreferenceKey::layoutsDebugShelf)).isNone());
}

TEST_F(LayoutsControllerTest, ClosingWhileComposingLogsTheCancellationOnceAndLeavesNothingShown) {
    open();
    unfold();
    click(Item::layoutTemplate(0));
    controller->pick(pickOf("Notes"));
    controller->missionControlClosed();
    controller->missionControlClosed();
    EXPECT_EQ(logged("layouts: composing cancelled, Mission Control closed"), 1u);
    EXPECT_FALSE(controller->isOpen());
    EXPECT_FALSE(controller->isComposing());
    EXPECT_FALSE(controller->shelf().isVisible());
    EXPECT_FALSE(controller->caption().isVisible());
    EXPECT_FALSE(controller->toast().isVisible());
    EXPECT_EQ(controller->badges().shown(), 0u);
    for (std::size_t bar = 0; bar < 4; ++bar)
        EXPECT_FALSE(controller->outline().bar(bar)->isVisible());
}

TEST_F(LayoutsControllerTest, EverythingIsANoOpWhileClosed) {
    storeLayout("Mail", "com.apple.mail");
    EXPECT_FALSE(controller->pointerMoved({720, 860}));
    EXPECT_FALSE(controller->shelfClick({720, 860}, 0));
    controller->recordPress(pickOf("Notes"), {1, 1});
    EXPECT_FALSE(controller->mouseDragged({100, 100}));
    controller->startCompose(0);
    controller->restore(0);
    settle();
    EXPECT_FALSE(controller->isComposing());
    EXPECT_TRUE(desktop.systemLog().messages().empty());
}

TEST_F(LayoutsControllerTest, AClickOutsideTheShelfIsNotTaken) {
    open();
    unfold();
    EXPECT_FALSE(controller->shelfClick({720, 100}, 0));
    EXPECT_TRUE(controller->shelfClick(controller->layout()->frame.mid(), 0));
}

TEST_F(LayoutsControllerTest, HoldingOptionRedrawsTheShelfForDeleting) {
    open();
    controller->setOptionHeld(true);
    EXPECT_TRUE(controller->optionHeld());
    EXPECT_TRUE(controller->shelf().view().state().optionHeld);
}

TEST_F(LayoutsControllerTest, ACaptureThatCompletesAfterTheControllerIsGoneDoesNothing) {
    open();
    unfold();
    click(Item::save());
    controller.reset();
    settle();
    EXPECT_TRUE(LayoutStore::load(*Shared::store()).empty());
}

}  // namespace
}  // namespace vistrel::testing
