#include <gtest/gtest.h>

#include "base/hotkey.h"
#include "layouts/layout_store.h"
#include "layouts_scenario.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "support/presented.h"

namespace vistrel::testing {
namespace {

using Item = ShelfLayout::Item;

constexpr std::uint64_t command = ModifierFlag::command;
constexpr std::int64_t leftArrow = 123;
constexpr std::int64_t digitTwo = 19;

// Composing, snapping and restoring as a user does them, on each way a Mac presents Mission
// Control.
class LayoutsStoryTest : public Presented<LayoutsScenario> {};

TEST_P(LayoutsStoryTest, ComposingHalvesByClickingTwoWindowsSavesItAndPlacesThemSideBySide) {
    Shared::store()->set(std::string(PreferenceKey::layoutsGap), 10.0);
    openMissionControl();
    unfoldShelf();
    clickCell(Item::layoutTemplate(0));
    ASSERT_TRUE(layouts().isComposing());
    clickWindow("Notes");
    clickWindow("Start Page");
    desktop.executor().advance(2);

    EXPECT_FALSE(layouts().isComposing());
    const auto stored = LayoutStore::load(*Shared::store());
    ASSERT_EQ(stored.size(), 1u);
    EXPECT_EQ(stored.front().name, "Notes · Safari");
    EXPECT_EQ(logged("layouts: saved \"Notes · Safari\" from Halves"), 1u);
    const Rect area = usableArea();
    EXPECT_EQ(frameOf("Notes"), UnitRect({0, 0, 0.5, 1}).frame(area, 10));
    EXPECT_EQ(frameOf("Start Page"), UnitRect({0.5, 0, 0.5, 1}).frame(area, 10));
    EXPECT_EQ(frameOf("Notes").minX(), area.minX() + 10);
    EXPECT_EQ(frameOf("Start Page").minX() - frameOf("Notes").maxX(), 10);
}

TEST_P(LayoutsStoryTest, CommandLeftThreeTimesCyclesHalfTwoThirdsThird) {
    openMissionControl();
    const Rect area = usableArea();
    const std::vector<UnitRect> expected{
        {0, 0, 0.5, 1}, {0, 0, 2.0 / 3.0, 1}, {0, 0, 1.0 / 3.0, 1}};
    for (const UnitRect& unit : expected) {
        hover("Notes");
        EXPECT_FALSE(key(leftArrow, command));
        desktop.executor().advance(1);
        EXPECT_EQ(frameOf("Notes"), unit.frame(area, 0));
    }
    EXPECT_EQ(
        logged("layouts: did snap window (pid " +
               std::to_string(desktop.window(windowTitled("Notes"))->pid) + ") to left third"),
        1u);
}

TEST_P(LayoutsStoryTest, CommandTwoRestoresTheSecondLayoutLaunchingTheQuitApplication) {
    SavedLayout first{
        UUID::random(), "Mail", {{"com.apple.mail", "Mail", "", {0, 0, 1, 1}, std::nullopt}}, 0};
    SavedLayout second{
        UUID::random(),
        "Notes · Finder",
        {{"com.apple.Notes", "Notes", "Notes", {0, 0, 0.5, 1}, std::nullopt},
         {"com.apple.finder", "Finder", "Downloads", {0.5, 0, 0.5, 1}, std::nullopt}},
        0};
    LayoutStore::add(*Shared::store(), first);
    LayoutStore::add(*Shared::store(), second);
    const Pid notes = desktop.window(windowTitled("Notes"))->pid;
    desktop.workspace().forceTerminate(notes);
    desktop.window(windowTitled("Downloads"))->minimized = true;

    openMissionControl();
    EXPECT_FALSE(key(digitTwo, command));
    desktop.executor().advance(10);

    EXPECT_EQ(logged("layouts: restoring \"Notes · Finder\""), 1u);
    EXPECT_EQ(logged("layouts: opened Notes to restore a layout"), 1u);
    EXPECT_EQ(logged("layouts: restored \"Notes · Finder\", 2 of 2 windows"), 1u);
    const Rect area = usableArea();
    SimWindowId relaunched = 0;
    for (const SimWindow& window : desktop.windows()) {
        if (window.title == "Notes" && !window.closed) relaunched = window.id;
    }
    ASSERT_NE(relaunched, 0u);
    EXPECT_NE(desktop.window(relaunched)->pid, notes);
    EXPECT_EQ(desktop.window(relaunched)->frame, UnitRect({0, 0, 0.5, 1}).frame(area, 0));
    EXPECT_FALSE(desktop.window(windowTitled("Downloads"))->minimized);
    EXPECT_EQ(frameOf("Downloads"), UnitRect({0.5, 0, 0.5, 1}).frame(area, 0));
}

TEST_P(LayoutsStoryTest, RestoringOntoAMachineWithoutTheSavedDisplayUsesTheFirstScreen) {
    desktop.addScreenToTheRight({1920, 1080});
    SavedLayout layout{UUID::random(),
                       "Mail",
                       {{"com.apple.mail", "Mail", "", {0.25, 0.1, 0.5, 0.8}, "GONE-DISPLAY"}},
                       0};
    LayoutStore::add(*Shared::store(), layout);
    openMissionControl();
    key(18, command);
    desktop.executor().advance(2);
    EXPECT_EQ(frameOf("Inbox – iCloud"), UnitRect({0.25, 0.1, 0.5, 0.8}).frame(usableArea(), 0));
}

// Mission Control closing at each step of a compose: after choosing the template, after
// the first pick, after switching templates, and while a window is dragged over a slot.
class ComposeInterruptedTest : public LayoutsScenario, public ::testing::WithParamInterface<int> {
  protected:
    void stepsUpTo(int last) {
        unfoldShelf();
        clickCell(Item::layoutTemplate(2));
        if (last == 0) return;
        clickWindow("Notes");
        if (last == 1) return;
        clickCell(Item::layoutTemplate(4));
        if (last == 2) return;
        clickWindow("Start Page");
    }
};

TEST_P(ComposeInterruptedTest, ClosingMissionControlLeavesNothingShownAndLogsTheCancellationOnce) {
    openMissionControl();
    stepsUpTo(GetParam());
    ASSERT_TRUE(layouts().isComposing());
    closeMissionControl();
    tick();
    EXPECT_FALSE(layouts().isOpen());
    EXPECT_FALSE(layouts().isComposing());
    EXPECT_EQ(logged("layouts: composing cancelled, Mission Control closed"), 1u);
    EXPECT_EQ(logged("layouts: composing cancelled"), 0u);
    EXPECT_TRUE(nothingShown());
}

INSTANTIATE_TEST_SUITE_P(EveryStep, ComposeInterruptedTest, ::testing::Values(0, 1, 2, 3));

INSTANTIATE_ON_EVERY_PRESENTATION(LayoutsStoryTest);

}  // namespace
}  // namespace vistrel::testing
