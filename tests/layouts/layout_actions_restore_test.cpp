#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "layout_actions_test.h"
#include "layouts/layout_actions.h"
#include "windows/recording_accessibility.h"
#include "windows/screens.h"

namespace vistrel {
namespace {

using Window = SavedLayout::Window;

constexpr UnitRect leftHalf{0, 0, 0.5, 1};
constexpr UnitRect rightHalf{0.5, 0, 0.5, 1};
constexpr Rect leftHalfFrame{0, 25, 720, 805};
constexpr Rect rightHalfFrame{720, 25, 720, 805};

const Window notesLeft{"com.apple.Notes", "Notes", "Notes", leftHalf, std::nullopt};
const Window safariRight{"com.apple.Safari", "Safari", "Start Page", rightHalf, std::nullopt};

class LayoutActionsRestoreTest : public testing::LayoutActionsTest {
  protected:
    // Installs an application that is not running, with one window to bring up.
    void installSlowApplication(double launchDelay, double windowDelay) {
        SimWindow window;
        window.title = "Untitled";
        window.frame = {200, 200, 600, 400};
        desktop.installations().install({"com.example.editor",
                                         "Editor",
                                         "/Applications/Editor.app",
                                         Color::fromRGB(0xFF9500),
                                         {window},
                                         launchDelay,
                                         windowDelay});
    }

    static Window editorLeft() {
        return {"com.example.editor", "Editor", "Untitled", leftHalf, std::nullopt};
    }

    double elapsedSince(double start) { return desktop.clock().now() - start; }
};

TEST_F(LayoutActionsRestoreTest, MovesTheSavedWindowsBackAndReportsThem) {
    const auto moved = restore(layoutOf({notesLeft, safariRight}));

    EXPECT_EQ(window("Notes").frame, leftHalfFrame);
    EXPECT_EQ(window("Start Page").frame, rightHalfFrame);
    EXPECT_EQ(moved, (std::vector<WindowRef>{ref("Notes"), ref("Start Page")}));
    EXPECT_EQ(logged("layouts: restored \"Desk\", 2 of 2 windows"), 1u);
}

TEST_F(LayoutActionsRestoreTest, WindowsArePairedByTitleWithinTheirApplication) {
    restore(layoutOf({{"com.apple.finder", "Finder", "Downloads", leftHalf, std::nullopt},
                      {"com.apple.finder", "Finder", "Applications", rightHalf, std::nullopt}}));

    EXPECT_EQ(window("Downloads").frame, leftHalfFrame);
    EXPECT_EQ(window("Applications").frame, rightHalfFrame);
}

TEST_F(LayoutActionsRestoreTest, SavedWindowsBeyondTheOpenOnesAreNotCounted) {
    const auto moved = restore(
        layoutOf({notesLeft, {"com.apple.Notes", "Notes", "Shopping", rightHalf, std::nullopt}}));

    EXPECT_EQ(moved.size(), 1u);
    EXPECT_EQ(logged("layouts: restored \"Desk\", 1 of 2 windows"), 1u);
}

TEST_F(LayoutActionsRestoreTest, WithLaunchingOffAQuitApplicationIsSkippedOnceAndTheRestIsMoved) {
    setLaunchApps(false);
    quit("com.apple.Notes");

    const auto moved =
        restore(layoutOf({notesLeft,
                          {"com.apple.Notes", "Notes", "Shopping", rightHalf, std::nullopt},
                          safariRight}));

    EXPECT_EQ(logged("layouts: com.apple.Notes is not running, its windows are skipped"), 1u);
    EXPECT_EQ(moved, std::vector<WindowRef>{ref("Start Page")});
    EXPECT_EQ(window("Start Page").frame, rightHalfFrame);
    EXPECT_EQ(pidOf("com.apple.Notes"), 0);
    EXPECT_TRUE(desktop.workspace().launchRequests.empty());
    EXPECT_EQ(logged("layouts: restored \"Desk\", 1 of 3 windows"), 1u);
}

TEST_F(LayoutActionsRestoreTest, TheLaunchSettingIsReadWhenTheRestoreIsAsked) {
    quit("com.apple.Notes");
    setLaunchApps(false);
    LayoutActions::restore(layoutOf({notesLeft}), nullptr);
    setLaunchApps(true);

    run();

    EXPECT_TRUE(desktop.workspace().launchRequests.empty());
}

TEST_F(LayoutActionsRestoreTest, AQuitApplicationIsLaunchedInTheBackgroundAndItsWindowPlaced) {
    quit("com.apple.Notes");
    const double start = desktop.clock().now();

    const auto moved = restore(layoutOf({notesLeft}));

    ASSERT_NE(pidOf("com.apple.Notes"), 0);
    EXPECT_EQ(window("Notes").frame, leftHalfFrame);
    EXPECT_EQ(moved, std::vector<WindowRef>{ref("Notes")});
    const auto& requests = desktop.workspace().launchRequests;
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_EQ(requests.front().first, "/System/Applications/Notes.app");
    EXPECT_FALSE(requests.front().second.activates);
    EXPECT_EQ(logged("layouts: opened Notes to restore a layout"), 1u);
    EXPECT_EQ(logged("layouts: restored \"Desk\", 1 of 1 windows"), 1u);
    // The application came up after 0.6 s and its windows 0.4 s later, seen on the second
    // look a quarter of a second apart.
    EXPECT_NEAR(elapsedSince(start), 1.1, 1e-6);
}

TEST_F(LayoutActionsRestoreTest, AnApplicationThatNeverComesUpIsSkippedAfterTheWait) {
    installSlowApplication(60, 0.4);
    const double start = desktop.clock().now();

    const auto moved = restore(layoutOf({editorLeft(), safariRight}));

    EXPECT_EQ(moved, std::vector<WindowRef>{ref("Start Page")});
    EXPECT_EQ(logged("layouts: com.example.editor is not running, its windows are skipped"), 1u);
    EXPECT_EQ(logged("layouts: opened Editor to restore a layout"), 0u);
    // Five seconds for the open, then twenty looks a quarter of a second apart.
    EXPECT_NEAR(elapsedSince(start), 10, 1e-6);
}

TEST_F(LayoutActionsRestoreTest, AnApplicationWhoseWindowIsLateIsOpenedButItsWindowNotPlaced) {
    installSlowApplication(0.6, 60);

    const auto moved = restore(layoutOf({editorLeft()}));

    EXPECT_TRUE(moved.empty());
    EXPECT_NE(pidOf("com.example.editor"), 0);
    EXPECT_EQ(logged("layouts: opened Editor to restore a layout"), 1u);
    EXPECT_EQ(logged("layouts: restored \"Desk\", 0 of 1 windows"), 1u);
}

TEST_F(LayoutActionsRestoreTest, AnApplicationThatIsNotInstalledIsSkippedWithoutALaunch) {
    const auto moved =
        restore(layoutOf({{"com.example.gone", "Gone", "", leftHalf, std::nullopt}}));

    EXPECT_TRUE(moved.empty());
    EXPECT_TRUE(desktop.workspace().launchRequests.empty());
    EXPECT_EQ(logged("layouts: com.example.gone is not running, its windows are skipped"), 1u);
}

TEST_F(LayoutActionsRestoreTest, AWindowSavedOnAScreenStillConnectedGoesBackToIt) {
    desktop.addScreenToTheRight({1920, 1080});
    const std::string second = Screens::snapshot().back().id;

    restore(layoutOf({{"com.apple.Notes", "Notes", "Notes", leftHalf, second}}));

    EXPECT_EQ(window("Notes").frame, (Rect{1440, 25, 960, 985}));
}

TEST_F(LayoutActionsRestoreTest, AWindowWhoseDisplayIsGoneLandsOnTheFirstScreenAtTheSameFractions) {
    desktop.addScreenToTheRight({1920, 1080});
    const std::string second = Screens::snapshot().back().id;
    desktop.screens().pop_back();

    const auto moved =
        restore(layoutOf({{"com.apple.Notes", "Notes", "Notes", rightHalf, second}}));

    EXPECT_EQ(moved.size(), 1u);
    EXPECT_EQ(window("Notes").frame, rightHalfFrame);
}

TEST_F(LayoutActionsRestoreTest, AMinimizedWindowIsBroughtBackBeforeItIsMoved) {
    window("Notes").minimized = true;
    testing::RecordingAccessibility recording(desktop.platform());

    const auto moved = restore(layoutOf({notesLeft}));

    EXPECT_FALSE(window("Notes").minimized);
    EXPECT_EQ(window("Notes").frame, leftHalfFrame);
    EXPECT_EQ(moved.size(), 1u);
    const auto& writes = recording.writes;
    const auto unminimize = std::find(writes.begin(), writes.end(),
                                      testing::RecordingAccessibility::Write{"AXMinimized", false});
    const auto firstMove = std::find_if(writes.begin(), writes.end(),
                                        [](const auto& w) { return w.attribute == "AXPosition"; });
    ASSERT_NE(unminimize, writes.end());
    EXPECT_LT(unminimize - writes.begin(), firstMove - writes.begin());
}

TEST_F(LayoutActionsRestoreTest, AHiddenApplicationIsShownAgainAndItsWindowMoved) {
    desktop.workspace().hide(pidOf("com.apple.Notes"));

    const auto moved = restore(layoutOf({notesLeft}));

    EXPECT_FALSE(desktop.application(pidOf("com.apple.Notes"))->hidden);
    EXPECT_EQ(window("Notes").frame, leftHalfFrame);
    EXPECT_EQ(moved.size(), 1u);
}

TEST_F(LayoutActionsRestoreTest, AWindowThatRefusesItsSizeIsNotCounted) {
    window("Notes").sizeSettable = false;

    const auto moved = restore(layoutOf({notesLeft, safariRight}));

    EXPECT_EQ(moved, std::vector<WindowRef>{ref("Start Page")});
    EXPECT_EQ(logged("layouts: restored \"Desk\", 1 of 2 windows"), 1u);
}

TEST_F(LayoutActionsRestoreTest, RestoringLeavesMissionControlBeforeItCompletes) {
    desktop.dock().open();
    std::optional<bool> openWhenDone;

    LayoutActions::restore(layoutOf({notesLeft}), [&](const LayoutActions::Restored&) {
        openWhenDone = desktop.dock().isOpen();
    });
    run();

    EXPECT_EQ(openWhenDone, false);
    EXPECT_EQ(desktop.windowServer().postedKeys,
              (std::vector<std::pair<std::uint16_t, bool>>{{53, true}, {53, false}}));
}

TEST_F(LayoutActionsRestoreTest, TheRestoredWindowsAreRaisedOnceMissionControlHasHadTimeToGo) {
    restore(layoutOf(
        {{"com.apple.finder", "Finder", "Applications", leftHalf, std::nullopt}, safariRight}));
    EXPECT_EQ(titlesFrontToBack().front(), "Start Page");

    advance(LayoutActions::escapeSettle);

    const auto after = titlesFrontToBack();
    EXPECT_EQ(std::vector<std::string>(after.begin(), after.begin() + 2),
              (std::vector<std::string>{"Applications", "Start Page"}));
}

}  // namespace
}  // namespace vistrel
