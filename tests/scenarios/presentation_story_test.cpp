// What sets the ways a Mac may present Mission Control apart, told on each of them: up to
// macOS 26 with the hit-test answering the window or the Dock's thumbnail button, and on
// macOS 27 with WindowManager's thumbnails naming their window ("wid") or not. Public records
// of real trees show each of them; in every one the hovered thumbnail must lead to its own
// window or to none, never to another. The everyday stories of hovering, shortcuts, snapping
// and composing run on every presentation in their own suites.
#include <gtest/gtest.h>

#include <string>

#include "base/hotkey.h"
#include "layouts/layout_store.h"
#include "layouts_scenario.h"
#include "settings/shared.h"
#include "support/presented.h"
#include "tracking/mission_control_detector.h"

namespace vistrel::testing {
namespace {

constexpr std::uint64_t command = ModifierFlag::command;
constexpr std::int64_t digitOne = 18;

class PresentationStoryTest : public Presented<LayoutsScenario> {
  protected:
    SimWindow& windowOf(const std::string& title) { return *desktop.window(windowTitled(title)); }
};

TEST_P(PresentationStoryTest, EveryThumbnailOfTheDefaultSceneLeadsToItsOwnWindow) {
    openMissionControl();
    for (const SimThumbnail& thumbnail : desktop.dock().thumbnails()) {
        EXPECT_EQ(targetOver(thumbnail.window), thumbnail.window) << thumbnail.window;
    }
}

TEST_P(PresentationStoryTest, CommandOneRestoresTheFirstLayoutAndLeavesMissionControl) {
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

TEST_P(PresentationStoryTest, AWindowThatChangedItsTitleAfterTheReadIsNotActedOn) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    ASSERT_TRUE(engine->target());
    windowOf("Notes").title = "Shopping list";
    move({1, 1});
    move(inside(thumbOf("Shopping list")));
    if (hitTestGivesTheWindow()) {
        EXPECT_TRUE(engine->target()) << "the hit-test names the window itself";
    } else {
        EXPECT_FALSE(engine->target());
    }
}

TEST_P(PresentationStoryTest, AppExposeShowsNoStripNoShelfAndTakesNoKeys) {
    desktop.dock().openAppExpose();
    desktop.executor().advance(MissionControlDetector::closedInterval);
    settle();
    EXPECT_FALSE(engine->active());
    move(inside(thumbOf("Notes")));
    EXPECT_FALSE(engine->target());
    EXPECT_TRUE(nothingShown());
    EXPECT_TRUE(key(KeyCode::w, command)) << "Command-W passes on to the system";
    EXPECT_FALSE(windowOf("Notes").closed);
}

TEST_P(PresentationStoryTest, TheReadingNamesTheHostAndCountsWhatWasTied) {
    openMissionControl();
    const MissionControlReading reading = engine->lastReading();
    EXPECT_EQ(reading.host, host());
    EXPECT_EQ(static_cast<std::size_t>(reading.thumbnails), engine->thumbs().size());
    EXPECT_EQ(static_cast<std::size_t>(reading.mapped), desktop.dock().thumbnails().size());
    EXPECT_EQ(reading.refusals, 0);
    EXPECT_EQ(logged(hostedByWindowManager() ? "mission control: reading WindowManager"
                                             : "mission control: reading the Dock"),
              1u);
    closeMissionControl();
    openMissionControl();
    EXPECT_EQ(logged("mission control: reading WindowManager") +
                  logged("mission control: reading the Dock"),
              1u)
        << "said at the first opening only";
}

INSTANTIATE_ON_EVERY_PRESENTATION(PresentationStoryTest);

}  // namespace
}  // namespace vistrel::testing
