// One step puts back what the last restore, arrangement or snap moved: Command-Z in Mission
// Control, or "Undo Layout" in the status panel, for ten minutes.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "layouts/layout_store.h"
#include "layouts/layout_undo.h"
#include "layouts_scenario.h"
#include "settings/shared.h"

namespace vistrel::testing {
namespace {

using Item = ShelfLayout::Item;

constexpr std::uint64_t command = ModifierFlag::command;
constexpr std::int64_t digitOne = 18;
constexpr std::int64_t zKey = 6;
constexpr std::int64_t leftArrow = 123;
constexpr double onePoint = 1;

class LayoutUndoTest : public LayoutsScenario {
  protected:
    LayoutUndoTest() {
        LayoutStore::add(
            *Shared::store(),
            {UUID::random(),
             "Notes · Finder",
             {{"com.apple.Notes", "Notes", "Notes", {0, 0, 0.5, 1}, std::nullopt},
              {"com.apple.finder", "Finder", "Downloads", {0.5, 0, 0.5, 1}, std::nullopt}},
             0});
    }
    std::map<std::string, Rect> framesOf(std::initializer_list<std::string> titles) {
        std::map<std::string, Rect> frames;
        for (const std::string& title : titles)
            frames[title] = frameOf(title);
        return frames;
    }
    void expectWithinAPoint(const std::map<std::string, Rect>& expected) {
        for (const auto& [title, frame] : expected) {
            const Rect now = frameOf(title);
            EXPECT_NEAR(now.x, frame.x, onePoint) << title;
            EXPECT_NEAR(now.y, frame.y, onePoint) << title;
            EXPECT_NEAR(now.width, frame.width, onePoint) << title;
            EXPECT_NEAR(now.height, frame.height, onePoint) << title;
        }
    }
    void restoreTheLayout() {
        openMissionControl();
        key(digitOne, command);
        desktop.executor().advance(2);
    }
    // Command-Z in a Mission Control opened again; whether the key went on to the system.
    bool commandZ() {
        openMissionControl();
        const bool passed = key(zKey, command);
        desktop.executor().advance(1);
        return passed;
    }
};

TEST_F(LayoutUndoTest, CommandZPutsEveryWindowARestoreMovedBackWithinAPoint) {
    const auto before = framesOf({"Notes", "Downloads"});
    restoreTheLayout();
    ASSERT_NE(frameOf("Notes"), before.at("Notes"));
    EXPECT_FALSE(commandZ()) << "kept: it ran the undo";
    expectWithinAPoint(before);
    EXPECT_EQ(layouts().toast().view().message(), "Put back 2 windows");
    EXPECT_EQ(logged("layouts: undid the last change, 2 windows back, 0 closed since"), 1u);
}

TEST_F(LayoutUndoTest, AWindowMinimizedBeforeTheRestoreIsMinimizedAgain) {
    desktop.window(windowTitled("Downloads"))->minimized = true;
    restoreTheLayout();
    ASSERT_FALSE(desktop.window(windowTitled("Downloads"))->minimized);
    commandZ();
    EXPECT_TRUE(desktop.window(windowTitled("Downloads"))->minimized);
}

TEST_F(LayoutUndoTest, AWindowClosedSinceIsSkippedAndCountedInTheHUD) {
    const auto before = framesOf({"Notes"});
    restoreTheLayout();
    desktop.closeWindow(windowTitled("Downloads"));
    commandZ();
    expectWithinAPoint(before);
    EXPECT_EQ(layouts().toast().view().message(), "Put back 1 window · 1 closed since");
}

TEST_F(LayoutUndoTest, AnUndoAfterARestoreThatPartlyFailedPutsBackWhatItRecorded) {
    const auto before = framesOf({"Notes", "Downloads"});
    desktop.window(windowTitled("Downloads"))->sizeSettable = false;
    restoreTheLayout();
    EXPECT_EQ(logged("layouts: restored \"Notes · Finder\", 1 of 2 windows"), 1u);
    commandZ();
    expectWithinAPoint(before);
}

TEST_F(LayoutUndoTest, ASnapIsUndoneWithCommandZ) {
    openMissionControl();
    const auto before = framesOf({"Notes"});
    hover("Notes");
    key(leftArrow, command);
    desktop.executor().advance(1);
    ASSERT_NE(frameOf("Notes"), before.at("Notes"));
    EXPECT_FALSE(key(zKey, command));
    desktop.executor().advance(1);
    expectWithinAPoint(before);
}

TEST_F(LayoutUndoTest, AnArrangementComposedOnTheShelfIsUndone) {
    const auto before = framesOf({"Notes", "Start Page"});
    openMissionControl();
    unfoldShelf();
    clickCell(Item::layoutTemplate(0));
    clickWindow("Notes");
    clickWindow("Start Page");
    desktop.executor().advance(2);
    ASSERT_NE(frameOf("Notes"), before.at("Notes"));
    commandZ();
    expectWithinAPoint(before);
}

TEST_F(LayoutUndoTest, OnlyTheLastChangeIsKeptAndOnlyOnce) {
    restoreTheLayout();
    const auto afterRestore = framesOf({"Notes"});
    openMissionControl();
    hover("Notes");
    key(leftArrow, command);
    desktop.executor().advance(1);
    commandZ();
    expectWithinAPoint(afterRestore);
    EXPECT_TRUE(commandZ()) << "nothing left to undo: Command-Z goes on to the system";
}

TEST_F(LayoutUndoTest, AfterTenMinutesThereIsNothingToUndoAndCommandZGoesOnToTheSystem) {
    const auto restored = [this] {
        restoreTheLayout();
        return framesOf({"Notes"});
    }();
    desktop.executor().advance(LayoutUndo::keptFor + 1);
    EXPECT_TRUE(commandZ());
    expectWithinAPoint(restored);
}

TEST_F(LayoutUndoTest, CommandZWithNothingToUndoGoesOnToTheSystem) {
    EXPECT_TRUE(commandZ());
}

}  // namespace
}  // namespace vistrel::testing
