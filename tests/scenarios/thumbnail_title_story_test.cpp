// Hovering, snapping and composing with the windows whose thumbnails say least about them
// (the title scene: a browser page, an untitled thumbnail, windows of one title), told on
// each way a Mac presents Mission Control. Each is found where something names it, and
// refused where nothing does; never is another window acted on.
#include <gtest/gtest.h>

#include <optional>

#include "base/hotkey.h"
#include "layouts/layout_store.h"
#include "layouts_scenario.h"
#include "platform/sim/sim_title_scene.h"
#include "settings/shared.h"
#include "support/presented.h"

namespace vistrel::testing {
namespace {

using Item = ShelfLayout::Item;

constexpr std::uint64_t command = ModifierFlag::command;
constexpr std::int64_t leftArrow = 123;

class ThumbnailTitleStoryTest : public Presented<LayoutsScenario> {
  protected:
    ThumbnailTitleStoryTest() : scene(addTitleScene(desktop)) {}

    // Whether the hit-test or the thumbnail names the window itself, so that neither a
    // missing title nor a shared one hides it.
    bool windowNamed() const { return hitTestGivesTheWindow() || thumbnailsNameWindows(); }
    Rect frameOfWindow(SimWindowId id) { return desktop.window(id)->frame; }
    void clickThumbnail(SimWindowId id) {
        ASSERT_EQ(targetOver(id), id);
        const Point at = inside(thumbOfWindow(id));
        press(at);
        release(at);
    }

    const SimTitleScene scene;
};

TEST_P(ThumbnailTitleStoryTest, EveryThumbnailLeadsToItsOwnWindowOrToNone) {
    openMissionControl();
    std::size_t found = 0;
    for (const SimThumbnail& thumbnail : desktop.dock().thumbnails()) {
        if (targetOver(thumbnail.window) == thumbnail.window) ++found;
    }
    // Only the two alike windows, where nothing names them, and the untitled thumbnail,
    // where nothing names its application either, go without a target.
    std::size_t unsure = windowNamed() ? 0 : 2;
    if (presentation() == SimPresentation::hitTestThumbnail) ++unsure;
    EXPECT_EQ(found, desktop.dock().thumbnails().size() - unsure);
}

TEST_P(ThumbnailTitleStoryTest, ABrowserWindowIsFoundByTheTitleItsAccessibilityTitleBeginsWith) {
    openMissionControl();
    EXPECT_EQ(targetOver(scene.browserPage), scene.browserPage);
}

TEST_P(ThumbnailTitleStoryTest, CommandWOverTheBrowserPageClosesItAndNoOtherWindow) {
    openMissionControl();
    ASSERT_EQ(targetOver(scene.browserPage), scene.browserPage);
    EXPECT_FALSE(key(KeyCode::w, command));
    for (const SimWindow& window : desktop.windows()) {
        EXPECT_EQ(window.closed, window.id == scene.browserPage) << window.title;
    }
}

TEST_P(ThumbnailTitleStoryTest, CommandLeftSnapsTheBrowserPageToTheLeftHalf) {
    openMissionControl();
    ASSERT_EQ(targetOver(scene.browserPage), scene.browserPage);
    EXPECT_FALSE(key(leftArrow, command));
    desktop.executor().advance(1);
    EXPECT_EQ(frameOfWindow(scene.browserPage), UnitRect({0, 0, 0.5, 1}).frame(usableArea(), 0));
}

// A thumbnail without a title is tied to a window only where something names it: the
// hit-test, the window's number, or an application with one window of its shape.
TEST_P(ThumbnailTitleStoryTest, AnUntitledThumbnailIsTiedOnlyWhereSomethingNamesItsWindow) {
    openMissionControl();
    if (presentation() == SimPresentation::hitTestThumbnail) {
        EXPECT_EQ(targetOver(scene.untitled), std::nullopt);
    } else {
        EXPECT_EQ(targetOver(scene.untitled), scene.untitled);
    }
}

// Two windows of one application with one title and one shape: only the hit-test or the
// window's number tells them apart; otherwise neither is acted on.
TEST_P(ThumbnailTitleStoryTest, TwoWindowsAlikeInTitleAndShapeAreNeverConfused) {
    openMissionControl();
    for (SimWindowId id : {scene.alikeFirst, scene.alikeSecond}) {
        EXPECT_EQ(targetOver(id), windowNamed() ? std::optional(id) : std::nullopt) << id;
    }
}

TEST_P(ThumbnailTitleStoryTest, TwoWindowsOfOneTitleAreToldApartByTheirShape) {
    openMissionControl();
    EXPECT_EQ(targetOver(scene.wide), scene.wide);
    EXPECT_EQ(targetOver(scene.tall), scene.tall);
}

TEST_P(ThumbnailTitleStoryTest, ComposingHalvesFromTheBrowserPageAndAWindowOfASharedTitle) {
    openMissionControl();
    unfoldShelf();
    clickCell(Item::layoutTemplate(0));
    ASSERT_TRUE(layouts().isComposing());
    clickThumbnail(scene.browserPage);
    clickThumbnail(scene.tall);
    desktop.executor().advance(2);

    EXPECT_EQ(LayoutStore::load(*Shared::store()).size(), 1u);
    const Rect area = usableArea();
    EXPECT_EQ(frameOfWindow(scene.browserPage), UnitRect({0, 0, 0.5, 1}).frame(area, 0));
    EXPECT_EQ(frameOfWindow(scene.tall), UnitRect({0.5, 0, 0.5, 1}).frame(area, 0));
    EXPECT_EQ(frameOfWindow(scene.wide), (Rect{100, 100, 900, 400})) << "its twin stays";
}

INSTANTIATE_ON_EVERY_PRESENTATION(ThumbnailTitleStoryTest);

}  // namespace
}  // namespace vistrel::testing
