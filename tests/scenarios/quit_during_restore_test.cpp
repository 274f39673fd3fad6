#include <gtest/gtest.h>

#include "base/hotkey.h"
#include "layouts/layout_store.h"
#include "layouts_scenario.h"
#include "settings/shared.h"

namespace vistrel::testing {
namespace {

constexpr std::uint64_t command = ModifierFlag::command;
constexpr std::int64_t digitOne = 18;
constexpr UnitRect leftHalf{0, 0, 0.5, 1};
constexpr UnitRect rightHalf{0.5, 0, 0.5, 1};
constexpr UnitRect topRight{0.5, 0, 0.5, 0.5};

// Finder quits (as a crash would) after a given number of accessibility calls, at every
// step of restoring a layout that moves its two windows between Notes and Terminal.
class QuitDuringRestoreTest : public LayoutsScenario, public ::testing::WithParamInterface<int> {
  protected:
    void SetUp() override {
        const SavedLayout layout{
            UUID::random(),
            "Work",
            {{"com.apple.Notes", "Notes", "Notes", leftHalf, std::nullopt},
             {"com.apple.finder", "Finder", "Applications", rightHalf, std::nullopt},
             {"com.apple.finder", "Finder", "Downloads", topRight, std::nullopt},
             {"com.apple.Terminal", "Terminal", "vistrel — zsh — 80×24", rightHalf, std::nullopt}},
            0};
        LayoutStore::add(*Shared::store(), layout);
        finder = desktop.window(windowTitled("Downloads"))->pid;
    }

    void restoreWhileFinderQuits(int afterCalls) {
        openMissionControl();
        desktop.accessibility().quitsAfterCalls[finder] = afterCalls;
        EXPECT_FALSE(key(digitOne, command));
        desktop.executor().advance(5);
    }

    Pid finder = 0;
};

TEST_P(QuitDuringRestoreTest, TheOtherApplicationsWindowsArePlacedAndTheCountSaysWhatMoved) {
    restoreWhileFinderQuits(GetParam());
    ASSERT_TRUE(desktop.application(finder)->terminated) << "Finder quit during the restore";
    const Rect area = usableArea();
    EXPECT_EQ(frameOf("Notes"), leftHalf.frame(area, 0));
    EXPECT_EQ(frameOf("vistrel — zsh — 80×24"), rightHalf.frame(area, 0));

    std::size_t restoredLines = 0;
    for (const SimLogLine& line : desktop.systemLog().lines()) {
        if (!line.message.starts_with("layouts: restored \"Work\", ")) continue;
        ++restoredLines;
        EXPECT_TRUE(line.message.ends_with(" of 4 windows")) << line.message;
        EXPECT_NE(line.message, "layouts: restored \"Work\", 4 of 4 windows")
            << "a window of the quit application cannot have moved";
    }
    EXPECT_EQ(restoredLines, 1u);
}

TEST_P(QuitDuringRestoreTest, MissionControlIsLeftAndTheAgentGoesOnHovering) {
    restoreWhileFinderQuits(GetParam());
    EXPECT_FALSE(desktop.dock().isOpen());
    openMissionControl();
    move(inside(thumbOf("Notes")));
    ASSERT_TRUE(engine->target());
    EXPECT_EQ(engine->target()->pid, desktop.window(windowTitled("Notes"))->pid);
}

INSTANTIATE_TEST_SUITE_P(EveryCall, QuitDuringRestoreTest, ::testing::Range(1, 16));

}  // namespace
}  // namespace vistrel::testing
