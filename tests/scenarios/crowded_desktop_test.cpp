#include <gtest/gtest.h>

#include "base/hotkey.h"
#include "layouts/layout_store.h"
#include "layouts_scenario.h"
#include "platform/sim/sim_crowded_scene.h"
#include "settings/shared.h"
#include "support/presented.h"
#include "windows/screens.h"

namespace vistrel::testing {
namespace {

constexpr std::size_t screens = 8;
constexpr std::size_t windows = 500;
constexpr std::uint64_t command = ModifierFlag::command;
constexpr std::int64_t leftArrow = 123;
constexpr std::int64_t digitOne = 18;

void populateCrowd(SimDesktop& desktop) {
    populateCrowdedScene(desktop, screens, windows);
}

// Five hundred windows on eight displays: Mission Control shows them all, and hovering,
// snapping and restoring work as on an everyday desktop, on each way a Mac presents Mission
// Control.
class CrowdedDesktopTest : public Presented<LayoutsScenario> {
  protected:
    CrowdedDesktopTest() : Presented(populateCrowd) {}

    // The usable area of the screen that holds a window.
    Rect usableAreaOf(const std::string& title) {
        const auto snapshot = Screens::snapshot();
        const auto screen = Screens::holding(frameOf(title), snapshot);
        EXPECT_TRUE(screen.has_value()) << title;
        return screen ? screen->visible : Rect{};
    }
};

TEST_P(CrowdedDesktopTest, MissionControlOpensWithAThumbnailForEveryWindow) {
    openMissionControl();
    EXPECT_TRUE(engine->active());
    EXPECT_EQ(engine->thumbs().size(), windows);
}

TEST_P(CrowdedDesktopTest, HoveringAThumbnailOnTheLastDisplayShowsItsStrip) {
    openMissionControl();
    // Windows are dealt out over the screens in turn: window 8 is on the eighth.
    hover("Window 8");
    ASSERT_TRUE(engine->target());
    EXPECT_EQ(engine->target()->pid, desktop.window(windowTitled("Window 8"))->pid);
    EXPECT_TRUE(engine->overlay().window().isVisible());
    const Rect strip = engine->layout()->items.front().rect;
    EXPECT_FALSE(thumbOf("Window 8").intersection(strip).isEmpty()) << "over its own thumbnail";
}

TEST_P(CrowdedDesktopTest, SnappingAWindowOnTheFifthDisplayPutsItOnTheLeftHalfThere) {
    openMissionControl();
    const Rect area = usableAreaOf("Window 485");
    hover("Window 485");
    EXPECT_FALSE(key(leftArrow, command));
    desktop.executor().advance(1);
    EXPECT_EQ(frameOf("Window 485"), UnitRect({0, 0, 0.5, 1}).frame(area, 0));
}

TEST_P(CrowdedDesktopTest, RestoringALayoutMovesItsWindowsAmongTheCrowd) {
    const SavedLayout layout{
        UUID::random(),
        "Crowd",
        {{"com.example.crowd50", "Crowd 50", "Window 491", {0, 0, 0.5, 1}, std::nullopt},
         {"com.example.crowd50", "Crowd 50", "Window 500", {0.5, 0, 0.5, 1}, std::nullopt}},
        0};
    LayoutStore::add(*Shared::store(), layout);
    openMissionControl();
    EXPECT_FALSE(key(digitOne, command));
    desktop.executor().advance(5);
    EXPECT_EQ(logged("layouts: restored \"Crowd\", 2 of 2 windows"), 1u);
    const Rect area = usableArea();
    EXPECT_EQ(frameOf("Window 491"), UnitRect({0, 0, 0.5, 1}).frame(area, 0));
    EXPECT_EQ(frameOf("Window 500"), UnitRect({0.5, 0, 0.5, 1}).frame(area, 0));
}

INSTANTIATE_ON_EVERY_PRESENTATION(CrowdedDesktopTest);

}  // namespace
}  // namespace vistrel::testing
