// The everyday stories, told once on a Mac whose Mission Control lives in the Dock
// (macOS 26) and once on one where it lives in WindowManager (macOS 27).
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "layouts/layout_store.h"
#include "layouts_scenario.h"
#include "settings/shared.h"
#include "tracking/hotkey.h"
#include "tracking/mission_control_detector.h"

namespace vistrel::testing {
namespace {

using Item = ShelfLayout::Item;

constexpr std::uint64_t command = ModifierFlag::command;
constexpr std::int64_t leftArrow = 123;
constexpr std::int64_t digitOne = 18;
constexpr int dockGeneration = 26;
constexpr int windowManagerGeneration = 27;

class GenerationStoryTest : public LayoutsScenario, public ::testing::WithParamInterface<int> {
  protected:
    GenerationStoryTest() { desktop.systemInfo().version.major = GetParam(); }

    SimWindow& windowOf(const std::string& title) { return *desktop.window(windowTitled(title)); }
};

TEST_P(GenerationStoryTest, HoveringAThumbnailShowsTheStripForItsWindow) {
    openMissionControl();
    ASSERT_TRUE(engine->active());
    EXPECT_EQ(engine->thumbs().size(), desktop.dock().thumbnails().size());
    const Rect thumb = thumbOf("Notes");
    move(inside(thumb));
    ASSERT_TRUE(engine->target());
    EXPECT_EQ(engine->target()->window,
              desktop.accessibility().windowElement(windowTitled("Notes")));
    EXPECT_EQ(engine->target()->pid, windowOf("Notes").pid);
    ASSERT_TRUE(engine->layout());
    EXPECT_TRUE(engine->layout()->items.front().rect.contains(thumb.origin()));
    EXPECT_TRUE(engine->overlay().window().isVisible());
}

TEST_P(GenerationStoryTest, CommandWClosesTheHoveredWindow) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    EXPECT_FALSE(key(KeyCode::w, command));
    EXPECT_TRUE(windowOf("Notes").closed);
    EXPECT_FALSE(windowOf("Start Page").closed);
}

TEST_P(GenerationStoryTest, ComposingHalvesPlacesTheTwoWindowsSideBySideAndLeaves) {
    openMissionControl();
    unfoldShelf();
    clickCell(Item::layoutTemplate(0));
    ASSERT_TRUE(layouts().isComposing());
    clickWindow("Notes");
    clickWindow("Start Page");
    desktop.executor().advance(2);

    EXPECT_EQ(LayoutStore::load(*Shared::store()).size(), 1u);
    const Rect area = usableArea();
    EXPECT_EQ(frameOf("Notes"), UnitRect({0, 0, 0.5, 1}).frame(area, 0));
    EXPECT_EQ(frameOf("Start Page"), UnitRect({0.5, 0, 0.5, 1}).frame(area, 0));
    EXPECT_FALSE(desktop.dock().isOpen());
}

TEST_P(GenerationStoryTest, CommandLeftSnapsTheHoveredWindowToTheLeftHalf) {
    openMissionControl();
    hover("Notes");
    EXPECT_FALSE(key(leftArrow, command));
    desktop.executor().advance(1);
    EXPECT_EQ(frameOf("Notes"), UnitRect({0, 0, 0.5, 1}).frame(usableArea(), 0));
}

TEST_P(GenerationStoryTest, CommandOneRestoresTheFirstLayoutAndLeavesMissionControl) {
    LayoutStore::add(*Shared::store(),
                     {UUID::random(),
                      "Notes · Finder",
                      {{"com.apple.Notes", "Notes", "Notes", {0, 0, 0.5, 1}, std::nullopt},
                       {"com.apple.finder", "Finder", "Downloads", {0.5, 0, 0.5, 1}, std::nullopt}},
                      0});
    openMissionControl();
    EXPECT_FALSE(key(digitOne, command));
    desktop.executor().advance(2);

    EXPECT_EQ(logged("layouts: restored \"Notes · Finder\", 2 of 2 windows"), 1u);
    EXPECT_EQ(frameOf("Notes"), UnitRect({0, 0, 0.5, 1}).frame(usableArea(), 0));
    EXPECT_FALSE(desktop.dock().isOpen());
    tick();
    EXPECT_FALSE(engine->active());
}

INSTANTIATE_TEST_SUITE_P(MissionControlHosts, GenerationStoryTest,
                         ::testing::Values(dockGeneration, windowManagerGeneration),
                         [](const ::testing::TestParamInfo<int>& info) {
                             return "macOS" + std::to_string(info.param);
                         });

}  // namespace
}  // namespace vistrel::testing
