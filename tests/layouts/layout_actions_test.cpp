#include "layouts/layout_actions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "layout_actions_test.h"
#include "windows/screens.h"

namespace vistrel {
namespace {

using Window = SavedLayout::Window;
using Placement = LayoutActions::Placement;
using Snapped = LayoutActions::Snapped;

const std::string screenID = "5A1D0000-0000-4000-8000-000000000001";
constexpr UnitRect leftHalf{0, 0, 0.5, 1};
constexpr UnitRect rightHalf{0.5, 0, 0.5, 1};

class LayoutActionsCaptureTest : public testing::LayoutActionsTest {
  protected:
    std::optional<SavedLayout> capture() {
        bool completed = false;
        std::optional<SavedLayout> captured;
        LayoutActions::captureCurrent([&](std::optional<SavedLayout> layout) {
            completed = true;
            captured = std::move(layout);
        });
        run();
        EXPECT_TRUE(completed);
        return captured;
    }

    std::vector<std::string> titles(const SavedLayout& layout) {
        std::vector<std::string> found;
        for (const Window& window : layout.windows)
            found.push_back(window.title);
        return found;
    }
};

TEST_F(LayoutActionsCaptureTest, CapturesTheVisibleWindowsFrontMostFirstNamedAfterTheirApps) {
    const auto layout = capture();

    ASSERT_TRUE(layout.has_value());
    EXPECT_EQ(titles(*layout),
              (std::vector<std::string>{"Start Page", "Notes", "vistrel — zsh — 80×24",
                                        "Inbox – iCloud", "Downloads", "Applications"}));
    EXPECT_EQ(layout->name, "Safari · Notes +3");
    EXPECT_EQ(layout->windows.front().bundleID, "com.apple.Safari");
    EXPECT_EQ(layout->windows.front().app, "Safari");
    EXPECT_EQ(layout->windows.back().bundleID, "com.apple.finder");
    EXPECT_EQ(layout->windows.back().app, "Finder");
    EXPECT_DOUBLE_EQ(layout->created, SimClock::defaultStart - 978307200);
}

TEST_F(LayoutActionsCaptureTest, EachWindowKeepsItsFractionsOfTheVisibleFrameAndTheDisplayID) {
    const auto layout = capture();

    ASSERT_TRUE(layout.has_value());
    const Window& safari = layout->windows.front();
    // Start Page is at (80, 50) 1060×720 on the visible frame (0, 25) 1440×805.
    EXPECT_DOUBLE_EQ(safari.rect.x, 80.0 / 1440);
    EXPECT_DOUBLE_EQ(safari.rect.y, 25.0 / 805);
    EXPECT_DOUBLE_EQ(safari.rect.w, 1060.0 / 1440);
    EXPECT_DOUBLE_EQ(safari.rect.h, 720.0 / 805);
    for (const Window& window : layout->windows)
        EXPECT_EQ(window.display, screenID) << window.title;
}

TEST_F(LayoutActionsCaptureTest, TheLayoutRemembersTheDisplaysConnectedWhenItWasSaved) {
    const auto layout = capture();
    ASSERT_TRUE(layout.has_value());
    ASSERT_EQ(layout->displays.size(), 1u);
    EXPECT_EQ(layout->displays.front().id, screenID);
    EXPECT_EQ(layout->displays.front().frame, (Rect{0, 0, 1440, 900}));
}

TEST_F(LayoutActionsCaptureTest, TheGapIsAddedBackAroundEachWindow) {
    setGap(10);

    const auto layout = capture();

    ASSERT_TRUE(layout.has_value());
    // Grown by 5 on every side, inside the visible frame inset by 5: (5, 30) 1430×795.
    const UnitRect& rect = layout->windows.front().rect;
    EXPECT_DOUBLE_EQ(rect.x, 70.0 / 1430);
    EXPECT_DOUBLE_EQ(rect.y, 15.0 / 795);
    EXPECT_DOUBLE_EQ(rect.w, 1070.0 / 1430);
    EXPECT_DOUBLE_EQ(rect.h, 730.0 / 795);
}

TEST_F(LayoutActionsCaptureTest, AScreenTooSmallForTheGapRecordsTheWholeArea) {
    setGap(40);
    // A visible frame 30 points wide leaves nothing inside a 40-point gap.
    desktop.screens().front().visibleFrame.width = 30;

    const auto layout = capture();

    ASSERT_TRUE(layout.has_value());
    for (const Window& window : layout->windows)
        EXPECT_EQ(window.rect, (UnitRect{0, 0, 1, 1})) << window.title;
}

TEST_F(LayoutActionsCaptureTest, AWindowOnNoScreenIsLeftOut) {
    window("Notes").frame = {3000, 3000, 640, 480};

    const auto layout = capture();

    ASSERT_TRUE(layout.has_value());
    EXPECT_EQ(titles(*layout),
              (std::vector<std::string>{"Start Page", "vistrel — zsh — 80×24", "Inbox – iCloud",
                                        "Downloads", "Applications"}));
}

TEST_F(LayoutActionsCaptureTest, NoVisibleWindowsCompleteWithNone) {
    for (const SimWindow& w : desktop.windows())
        desktop.closeWindow(w.id);

    EXPECT_EQ(capture(), std::nullopt);
}

TEST_F(LayoutActionsCaptureTest, TheCaptureWorksOnTheLayoutsQueueAndCompletesOnTheMainQueue) {
    bool completed = false;
    LayoutActions::captureCurrent([&](std::optional<SavedLayout>) { completed = true; });

    auto queue = desktop.executor().queue("com.quillmarsh.vistrel.layouts");
    ASSERT_NE(queue, nullptr);
    EXPECT_EQ(queue->pending(), 1u);
    EXPECT_EQ(desktop.executor().mainQueue().pending(), 0u);
    queue->drain();
    EXPECT_FALSE(completed);
    EXPECT_EQ(desktop.executor().mainQueue().pending(), 1u);
    desktop.executor().mainQueue().drain();
    EXPECT_TRUE(completed);
}

class LayoutActionsArrangeTest : public testing::LayoutActionsTest {
  protected:
    std::optional<SavedLayout> arrange(std::vector<Placement> placements) {
        bool completed = false;
        std::optional<SavedLayout> arranged;
        LayoutActions::arrange(std::move(placements), Screens::snapshot().front(),
                               [&](std::optional<SavedLayout> layout) {
                                   completed = true;
                                   arranged = std::move(layout);
                               });
        run();
        EXPECT_TRUE(completed);
        return arranged;
    }
};

TEST_F(LayoutActionsArrangeTest, PlacesEachWindowInItsSlotWithTheGapBetweenThem) {
    setGap(10);

    arrange({{ref("Notes"), leftHalf}, {ref("vistrel — zsh — 80×24"), rightHalf}});

    EXPECT_EQ(window("Notes").frame, (Rect{10, 35, 705, 785}));
    EXPECT_EQ(window("vistrel — zsh — 80×24").frame, (Rect{725, 35, 705, 785}));
}

TEST_F(LayoutActionsArrangeTest, ReturnsTheLayoutTheWindowsFormNamedAfterTheirApps) {
    const auto layout =
        arrange({{ref("Notes"), leftHalf}, {ref("vistrel — zsh — 80×24"), rightHalf}});

    ASSERT_TRUE(layout.has_value());
    EXPECT_EQ(layout->name, "Notes · Terminal");
    EXPECT_EQ(layout->windows,
              (std::vector<Window>{{"com.apple.Notes", "Notes", "Notes", leftHalf, screenID},
                                   {"com.apple.Terminal", "Terminal", "vistrel — zsh — 80×24",
                                    rightHalf, screenID}}));
    EXPECT_DOUBLE_EQ(layout->created, SimClock::defaultStart - 978307200);
    EXPECT_EQ(logged("layouts: arranged 2 windows"), 1u);
}

TEST_F(LayoutActionsArrangeTest, AFullScreenWindowIsLeftAloneAndLeftOutOfTheLayout) {
    window("Notes").fullScreen = true;

    const auto layout =
        arrange({{ref("Notes"), leftHalf}, {ref("vistrel — zsh — 80×24"), rightHalf}});

    EXPECT_EQ(window("Notes").frame, (Rect{760, 110, 640, 480}));
    ASSERT_TRUE(layout.has_value());
    ASSERT_EQ(layout->windows.size(), 1u);
    EXPECT_EQ(layout->windows.front().app, "Terminal");
    EXPECT_EQ(logged("layouts: arranged 1 windows"), 1u);
}

TEST_F(LayoutActionsArrangeTest, NothingArrangedCompletesWithNone) {
    window("Notes").fullScreen = true;

    EXPECT_EQ(arrange({{ref("Notes"), leftHalf}}), std::nullopt);
    EXPECT_EQ(logged("layouts: arranged 0 windows"), 1u);
}

TEST_F(LayoutActionsArrangeTest, AWindowOfAnAppWithoutBundleIdentifierIsPlacedButNotRecorded) {
    SimApplication tool;
    tool.name = "build-watcher";
    SimWindow console;
    console.title = "watching";
    console.frame = {300, 200, 500, 400};
    const SimWindowId id = desktop.addWindow(desktop.addApplication(tool), console);

    const auto layout = arrange({{ref("watching"), leftHalf}, {ref("Start Page"), rightHalf}});

    EXPECT_EQ(desktop.window(id)->frame, (Rect{0, 25, 720, 805}));
    ASSERT_TRUE(layout.has_value());
    ASSERT_EQ(layout->windows.size(), 1u);
    EXPECT_EQ(layout->windows.front().app, "Safari");
    EXPECT_EQ(logged("layouts: arranged 1 windows"), 1u);
}

TEST_F(LayoutActionsArrangeTest, ArrangingLeavesMissionControlBeforeItCompletes) {
    desktop.dock().open();
    std::optional<bool> openWhenDone;

    LayoutActions::arrange(
        {{ref("Notes"), leftHalf}}, Screens::snapshot().front(),
        [&](std::optional<SavedLayout>) { openWhenDone = desktop.dock().isOpen(); });
    run();

    EXPECT_EQ(openWhenDone, false);
    EXPECT_EQ(desktop.windowServer().postedKeys,
              (std::vector<std::pair<std::uint16_t, bool>>{{53, true}, {53, false}}));
}

class LayoutActionsSnapTest : public testing::LayoutActionsTest {
  protected:
    std::optional<Snapped> snap(const std::string& title, SnapKey key) {
        bool completed = false;
        std::optional<Snapped> snapped;
        LayoutActions::snap(ref(title), key, [&](std::optional<Snapped> result) {
            completed = true;
            snapped = result;
        });
        run();
        EXPECT_TRUE(completed);
        return snapped;
    }

    std::string pidText(const std::string& bundleID) { return std::to_string(pidOf(bundleID)); }
};

TEST_F(LayoutActionsSnapTest, RepeatedCommandLeftCyclesHalfTwoThirdsAndThird) {
    const std::string pid = pidText("com.apple.Notes");

    EXPECT_EQ(snap("Notes", SnapKey::left), (Snapped{leftHalf, {0, 25, 720, 805}}));
    EXPECT_EQ(window("Notes").frame, (Rect{0, 25, 720, 805}));
    EXPECT_EQ(snap("Notes", SnapKey::left), (Snapped{{0, 0, 2.0 / 3.0, 1}, {0, 25, 960, 805}}));
    EXPECT_EQ(snap("Notes", SnapKey::left), (Snapped{{0, 0, 1.0 / 3.0, 1}, {0, 25, 480, 805}}));
    EXPECT_EQ(window("Notes").frame, (Rect{0, 25, 480, 805}));
    EXPECT_EQ(log(), (std::vector<std::string>{
                         "layouts: did snap window (pid " + pid + ") to left half",
                         "layouts: did snap window (pid " + pid + ") to left two thirds",
                         "layouts: did snap window (pid " + pid + ") to left third"}));
}

TEST_F(LayoutActionsSnapTest, TheSnappedFrameKeepsTheGap) {
    setGap(10);

    const auto snapped = snap("Notes", SnapKey::right);

    ASSERT_TRUE(snapped.has_value());
    EXPECT_EQ(snapped->unit, rightHalf);
    EXPECT_EQ(snapped->frame, (Rect{725, 35, 705, 785}));
    EXPECT_EQ(window("Notes").frame, snapped->frame);
}

TEST_F(LayoutActionsSnapTest, SnappingAFullScreenWindowMovesNothingAndCompletesWithNone) {
    window("Notes").fullScreen = true;

    EXPECT_EQ(snap("Notes", SnapKey::left), std::nullopt);
    EXPECT_EQ(window("Notes").frame, (Rect{760, 110, 640, 480}));
    EXPECT_EQ(log(), std::vector<std::string>{"layouts: not snapping a full-screen window (pid " +
                                              pidText("com.apple.Notes") + ")"});
}

TEST_F(LayoutActionsSnapTest, AWindowThatRefusesItsSizeIsLoggedAsAFailedSnap) {
    window("Notes").sizeSettable = false;

    const auto snapped = snap("Notes", SnapKey::fill);

    EXPECT_EQ(log(), std::vector<std::string>{"layouts: FAILED to snap window (pid " +
                                              pidText("com.apple.Notes") + ") to fill"});
    ASSERT_TRUE(snapped.has_value());
    EXPECT_EQ(snapped->unit, (UnitRect{0, 0, 1, 1}));
}

TEST_F(LayoutActionsSnapTest, AClosedWindowIsNotSnapped) {
    const WindowRef notes = ref("Notes");
    desktop.closeWindow(windowTitled("Notes"));
    std::optional<Snapped> snapped = Snapped{};

    LayoutActions::snap(notes, SnapKey::left, [&](std::optional<Snapped> r) { snapped = r; });
    run();

    EXPECT_EQ(snapped, std::nullopt);
    EXPECT_EQ(log().size(), 1u);
}

TEST_F(LayoutActionsSnapTest, AWindowOnASecondScreenSnapsOnThatScreen) {
    desktop.addScreenToTheRight({1920, 1080});
    window("Notes").frame = {2000, 200, 800, 600};

    const auto snapped = snap("Notes", SnapKey::left);

    ASSERT_TRUE(snapped.has_value());
    EXPECT_EQ(snapped->frame, (Rect{1440, 25, 960, 985}));
}

TEST_F(LayoutActionsSnapTest, SnappingDoesNotLeaveMissionControl) {
    desktop.dock().open();

    snap("Notes", SnapKey::left);
    advance(2);

    EXPECT_TRUE(desktop.windowServer().postedKeys.empty());
    EXPECT_TRUE(desktop.dock().isOpen());
}

class LayoutActionsGapTest : public testing::LayoutActionsTest {
  protected:
    Rect restoredLeftHalf() {
        restore(layoutOf({{"com.apple.Notes", "Notes", "Notes", leftHalf, std::nullopt}}));
        return window("Notes").frame;
    }
};

TEST_F(LayoutActionsGapTest, AGapOfAHundredPlacesWindowsFortyPointsApart) {
    setGap(100);

    EXPECT_EQ(restoredLeftHalf(), (Rect{40, 65, 660, 725}));
}

TEST_F(LayoutActionsGapTest, ANegativeGapPlacesWindowsWithoutAGap) {
    setGap(-12);

    EXPECT_EQ(restoredLeftHalf(), (Rect{0, 25, 720, 805}));
}

TEST_F(LayoutActionsGapTest, AGapThatIsNotANumberCountsAsNoGap) {
    setGap(std::numeric_limits<double>::quiet_NaN());

    EXPECT_EQ(LayoutActions::gap(), 0);
    EXPECT_EQ(restoredLeftHalf(), (Rect{0, 25, 720, 805}));
}

TEST_F(LayoutActionsGapTest, TheGapIsReadWhenTheOperationIsAskedForNotWhenItRuns) {
    setGap(20);
    LayoutActions::snap(ref("Notes"), SnapKey::left, nullptr);
    setGap(0);

    run();

    EXPECT_EQ(window("Notes").frame, (Rect{20, 45, 690, 765}));
}

}  // namespace
}  // namespace vistrel
