#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "settings/shared.h"
#include "window_test.h"
#include "windows/window_actions.h"

namespace vistrel {
namespace {

using testing::WindowTest;

constexpr Rect original{200, 150, 600, 400};
// The primary screen without the 25-point menu bar and the 70-point Dock.
constexpr Rect primaryVisible{0, 25, 1440, 805};
// A 1920×1080 display to the right of the primary, tops aligned.
constexpr Size secondSize{1920, 1080};
constexpr Rect secondVisible{1440, 25, 1920, 985};

class FillScreenTest : public WindowTest {
  protected:
    FillScreenTest() {
        Shared::store()->set("maximizeMode", "fill");
        pid = addApp("com.apple.Preview", "Preview");
        preview = addWindow(pid, "Map.pdf", original);
    }

    bool maximize() { return WindowActions::maximize(element(preview)); }
    Rect& frame() { return window(preview).frame; }

    Pid pid = 0;
    SimWindowId preview = 0;
};

TEST_F(FillScreenTest, FillPutsTheWindowOnTheVisibleFrameBetweenMenuBarAndDock) {
    EXPECT_TRUE(maximize());

    EXPECT_EQ(frame(), primaryVisible);
    EXPECT_FALSE(window(preview).fullScreen);
    EXPECT_TRUE(desktop.windowServer().postedKeys.empty());
}

TEST_F(FillScreenTest, FillingTwiceReturnsTheWindowToItsEarlierFrame) {
    EXPECT_TRUE(maximize());
    EXPECT_TRUE(maximize());

    EXPECT_EQ(frame(), original);
}

TEST_F(FillScreenTest, AWindowMovedByHandAfterItsFillIsFilledAgainAndRemembersTheNewFrame) {
    maximize();
    frame().x += 6;
    const Rect moved = frame();

    maximize();
    EXPECT_EQ(frame(), primaryVisible);

    maximize();
    EXPECT_EQ(frame(), moved);
}

TEST_F(FillScreenTest, AWindowLessThanSixPointsOffTheTargetStillCountsAsFilling) {
    maximize();
    frame().x += 5.99;
    frame().y -= 5.99;
    frame().width -= 5.99;
    frame().height += 5.99;

    maximize();
    EXPECT_EQ(frame(), original);
}

TEST_F(FillScreenTest, AWindowFillingTheScreenWithoutARememberedFrameIsFilledAndRemembered) {
    frame() = {2, 27, 1436, 801};

    EXPECT_TRUE(maximize());
    EXPECT_EQ(frame(), primaryVisible);

    maximize();
    EXPECT_EQ(frame(), (Rect{2, 27, 1436, 801}));
}

TEST_F(FillScreenTest, EachWindowRemembersItsOwnFrame) {
    const Rect otherFrame{50, 500, 300, 200};
    const SimWindowId other = addWindow(pid, "Notes.pdf", otherFrame);

    maximize();
    WindowActions::maximize(element(other));
    maximize();
    WindowActions::maximize(element(other));

    EXPECT_EQ(frame(), original);
    EXPECT_EQ(window(other).frame, otherFrame);
}

TEST_F(FillScreenTest, AWindowOnTheSecondDisplayFillsThatDisplay) {
    desktop.addScreenToTheRight(secondSize);
    frame() = {2000, 300, 800, 500};

    EXPECT_TRUE(maximize());
    EXPECT_EQ(frame(), secondVisible);
}

TEST_F(FillScreenTest, AWindowCentredOffEveryDisplayFillsTheMainScreen) {
    desktop.addScreenToTheRight(secondSize);
    desktop.mainScreenIndex = 1;
    frame() = {6000, 3000, 800, 500};

    EXPECT_TRUE(maximize());
    EXPECT_EQ(frame(), secondVisible);
}

TEST_F(FillScreenTest, AWindowCentredOffEveryDisplayFillsTheFirstScreenWithoutAMainScreen) {
    desktop.addScreenToTheRight(secondSize);
    desktop.mainScreenIndex = std::nullopt;
    frame() = {6000, 3000, 800, 500};

    EXPECT_TRUE(maximize());
    EXPECT_EQ(frame(), primaryVisible);
}

TEST_F(FillScreenTest, FillWithNoScreenAtAllIsAFailedAction) {
    desktop.screens().clear();

    WindowActions::perform(element(preview), pid, Hotkey::maximize);
    desktop.executor().runUntilIdle();

    EXPECT_EQ(frame(), original);
    EXPECT_EQ(log(), std::vector<std::string>{
                         "FAILED to maximize window (pid 500, \"Map.pdf\") using hot key"});
}

TEST_F(FillScreenTest, FillFailsWhenTheApplicationRefusesTheSize) {
    window(preview).sizeSettable = false;

    EXPECT_FALSE(maximize());
}

TEST_F(FillScreenTest, AWindowWithAMinimumSizeLargerThanTheScreenStillReportsSuccess) {
    window(preview).minimumSize = Size{2000, 1000};

    EXPECT_TRUE(maximize());
    EXPECT_EQ(frame(), (Rect{0, 25, 2000, 1000}));
}

TEST_F(FillScreenTest, AClosedWindowCannotBeFilled) {
    desktop.closeWindow(preview);

    EXPECT_FALSE(maximize());
}

TEST_F(FillScreenTest, TheScreensAreReadOnTheMainQueueAfterItsPendingWork) {
    // A screen added by work already queued on the main thread is seen by the fill.
    desktop.executor().main().async([this] { desktop.addScreenToTheRight(secondSize); });
    frame() = {2000, 300, 800, 500};

    WindowActions::perform(element(preview), pid, Hotkey::maximize);
    desktop.executor().queue("com.quillmarsh.vistrel.accessibility")->drain();

    EXPECT_EQ(frame(), secondVisible);
}

}  // namespace
}  // namespace vistrel
