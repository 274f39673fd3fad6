// The everyday stories, told on each way a Mac may present Mission Control: up to macOS 26
// with the hit-test answering the window or the Dock's thumbnail button, and on macOS 27
// with WindowManager's thumbnails naming their window ("wid") or not. Public records of
// real trees show each of them; in every one the hovered thumbnail must lead to its own
// window or to none, never to another.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "base/hotkey.h"
#include "layouts/layout_store.h"
#include "layouts_scenario.h"
#include "platform/sim/sim_presentation.h"
#include "settings/shared.h"
#include "tracking/mission_control_detector.h"

namespace vistrel::testing {
namespace {

using Item = ShelfLayout::Item;

constexpr std::uint64_t command = ModifierFlag::command;
constexpr std::int64_t leftArrow = 123;
constexpr std::int64_t digitOne = 18;

class PresentationStoryTest : public LayoutsScenario,
                              public ::testing::WithParamInterface<SimPresentation> {
  protected:
    PresentationStoryTest() { present(desktop, GetParam()); }

    SimWindow& windowOf(const std::string& title) { return *desktop.window(windowTitled(title)); }
    bool hitTestGivesTheWindow() const { return GetParam() == SimPresentation::hitTestWindow; }
    bool thumbnailsNameWindows() const { return GetParam() == SimPresentation::numberedThumbnails; }
    bool thumbnailsNameApplications() const {
        return GetParam() == SimPresentation::numberedThumbnails ||
               GetParam() == SimPresentation::unnumberedThumbnails;
    }

    // A window of a new regular application.
    SimWindowId addWindow(const std::string& bundle, SimWindow window) {
        SimApplication app;
        app.bundleIdentifier = bundle;
        app.name = bundle;
        Pid pid = 0;
        for (const SimApplication& running : desktop.applications()) {
            if (running.bundleIdentifier == bundle) pid = running.pid;
        }
        if (pid == 0) pid = desktop.addApplication(app);
        return desktop.addWindow(pid, std::move(window));
    }
    static SimWindow window(std::string title, Rect frame) {
        SimWindow made;
        made.title = std::move(title);
        made.frame = frame;
        return made;
    }

    // The window the engine targets after the pointer came to rest over a window's
    // thumbnail; nothing when it targets none. Any other window fails the test.
    std::optional<SimWindowId> targetOver(SimWindowId id) {
        move({1, 1});
        move(inside(thumbOfWindow(id)));
        tick();
        settle();
        if (!engine->target()) return std::nullopt;
        for (const SimWindow& shown : desktop.windows()) {
            if (engine->target()->window == desktop.accessibility().windowElement(shown.id)) {
                EXPECT_EQ(shown.id, id) << "the strip acts on another window";
                return shown.id;
            }
        }
        ADD_FAILURE() << "the target is no window of the desktop";
        return std::nullopt;
    }
};

TEST_P(PresentationStoryTest, HoveringAThumbnailShowsTheStripForItsWindow) {
    openMissionControl();
    ASSERT_TRUE(engine->active());
    EXPECT_EQ(engine->thumbs().size(), desktop.dock().thumbnails().size() +
                                           (thumbnailsNameApplications() && !thumbnailsNameWindows()
                                                ? desktop.dock().otherDesktop.size()
                                                : 0));
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

TEST_P(PresentationStoryTest, EveryThumbnailOfTheDefaultSceneLeadsToItsOwnWindow) {
    openMissionControl();
    for (const SimThumbnail& thumbnail : desktop.dock().thumbnails()) {
        EXPECT_EQ(targetOver(thumbnail.window), thumbnail.window) << thumbnail.window;
    }
}

TEST_P(PresentationStoryTest, CommandWClosesTheHoveredWindow) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    EXPECT_FALSE(key(KeyCode::w, command));
    EXPECT_TRUE(windowOf("Notes").closed);
    EXPECT_FALSE(windowOf("Start Page").closed);
}

TEST_P(PresentationStoryTest, ComposingHalvesPlacesTheTwoWindowsSideBySideAndLeaves) {
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

TEST_P(PresentationStoryTest, CommandLeftSnapsTheHoveredWindowToTheLeftHalf) {
    openMissionControl();
    hover("Notes");
    EXPECT_FALSE(key(leftArrow, command));
    desktop.executor().advance(1);
    EXPECT_EQ(frameOf("Notes"), UnitRect({0, 0, 0.5, 1}).frame(usableArea(), 0));
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

// A browser's thumbnail carries the page's title; its accessibility title adds the
// browser's name and the profile.
TEST_P(PresentationStoryTest, ABrowserWindowIsFoundByTheTitleItsAccessibilityTitleBeginsWith) {
    SimWindow page = window("Release notes - Google Chrome - Work", {200, 120, 900, 640});
    page.serverTitle = "Release notes";
    const SimWindowId id = addWindow("com.google.Chrome", page);
    openMissionControl();
    EXPECT_EQ(targetOver(id), id);
}

// A thumbnail without a title is tied to a window only where something names it: the
// hit-test, the window's number, or an application with one window of its shape.
TEST_P(PresentationStoryTest, AnUntitledThumbnailIsTiedOnlyWhereSomethingNamesItsWindow) {
    SimWindow document = window("Document1", {300, 200, 800, 700});
    document.serverTitle = "";
    const SimWindowId id = addWindow("com.microsoft.Word", document);
    openMissionControl();
    if (GetParam() == SimPresentation::hitTestThumbnail) {
        EXPECT_EQ(targetOver(id), std::nullopt);
    } else {
        EXPECT_EQ(targetOver(id), id);
    }
}

// Two windows of one application with one title and one shape: only the hit-test or the
// window's number tells them apart; otherwise neither is acted on.
TEST_P(PresentationStoryTest, TwoWindowsAlikeInTitleAndShapeAreNeverConfused) {
    const SimWindowId first =
        addWindow("com.apple.TextEdit", window("Untitled", {100, 100, 600, 400}));
    const SimWindowId second =
        addWindow("com.apple.TextEdit", window("Untitled", {700, 300, 600, 400}));
    openMissionControl();
    const bool toldApart = hitTestGivesTheWindow() || thumbnailsNameWindows();
    for (SimWindowId id : {first, second}) {
        EXPECT_EQ(targetOver(id), toldApart ? std::optional(id) : std::nullopt) << id;
    }
    if (!toldApart) {
        EXPECT_EQ(engine->lastReading().refusals, 2);
    }
}

TEST_P(PresentationStoryTest, TwoWindowsOfOneTitleAreToldApartByTheirShape) {
    const SimWindowId wide =
        addWindow("com.apple.TextEdit", window("Untitled", {100, 100, 900, 400}));
    const SimWindowId tall =
        addWindow("com.apple.TextEdit", window("Untitled", {700, 100, 400, 700}));
    openMissionControl();
    EXPECT_EQ(targetOver(wide), wide);
    EXPECT_EQ(targetOver(tall), tall);
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
    EXPECT_EQ(reading.host, thumbnailsNameApplications() ? MissionControlHost::windowManager
                                                         : MissionControlHost::dock);
    EXPECT_EQ(static_cast<std::size_t>(reading.thumbnails), engine->thumbs().size());
    EXPECT_EQ(static_cast<std::size_t>(reading.mapped), desktop.dock().thumbnails().size());
    EXPECT_EQ(reading.refusals, 0);
    EXPECT_EQ(logged(thumbnailsNameApplications() ? "mission control: reading WindowManager"
                                                  : "mission control: reading the Dock"),
              1u);
    closeMissionControl();
    openMissionControl();
    EXPECT_EQ(logged("mission control: reading WindowManager") +
                  logged("mission control: reading the Dock"),
              1u)
        << "said at the first opening only";
}

INSTANTIATE_TEST_SUITE_P(MissionControlPresentations, PresentationStoryTest,
                         ::testing::ValuesIn(everyPresentation),
                         [](const ::testing::TestParamInfo<SimPresentation>& info) {
                             return std::string(name(info.param));
                         });

}  // namespace
}  // namespace vistrel::testing
