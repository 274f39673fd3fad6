#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "settings/shared.h"
#include "window_test.h"
#include "windows/window_actions.h"

namespace vistrel {
namespace {

using testing::WindowTest;

using PostedKeys = std::vector<std::pair<std::uint16_t, bool>>;
constexpr std::uint16_t escape = 53;
// One attempt: 0.12 s for the window to minimize, then 0.15 s before trying again.
constexpr double attempt = 0.27;
// Escape takes 0.7 s to leave Mission Control; the switch gets 0.35 s to show.
constexpr double fullScreenRound = 1.05;
constexpr double virtualTimeSlack = 1e-6;

class MinimizeMaximizeTest : public WindowTest {
  protected:
    MinimizeMaximizeTest() {
        const Pid pid = addApp("com.apple.Safari", "Safari");
        safari = addWindow(pid, "Start Page", {100, 100, 800, 600});
        start = desktop.clock().now();
    }

    SimWindowId safari = 0;
    double start = 0;
};

TEST_F(MinimizeMaximizeTest, MinimizeIsCheckedAfterATenthOfASecondAndSucceedsAtOnce) {
    EXPECT_TRUE(WindowActions::minimize(element(safari)));

    EXPECT_TRUE(window(safari).minimized);
    EXPECT_NEAR(elapsedSince(start), 0.12, virtualTimeSlack);
}

TEST_F(MinimizeMaximizeTest, AWindowRefusingTheAttributeIsMinimizedThroughItsButton) {
    window(safari).minimizeBehavior = MinimizeBehavior::refusesAttributeObeysButton;

    EXPECT_TRUE(WindowActions::minimize(element(safari)));

    EXPECT_TRUE(window(safari).minimized);
    EXPECT_NEAR(elapsedSince(start), 0.12, virtualTimeSlack);
}

TEST_F(MinimizeMaximizeTest, AWindowThatNeverMinimizesIsTriedSixTimesAndFails) {
    window(safari).minimizeBehavior = MinimizeBehavior::never;

    EXPECT_FALSE(WindowActions::minimize(element(safari)));

    EXPECT_FALSE(window(safari).minimized);
    EXPECT_NEAR(elapsedSince(start), 6 * attempt, virtualTimeSlack);
}

TEST_F(MinimizeMaximizeTest, AWindowRefusingTheAttributeWithoutAButtonFails) {
    window(safari).minimizeBehavior = MinimizeBehavior::refusesAttributeObeysButton;
    window(safari).hasMinimizeButton = false;

    EXPECT_FALSE(WindowActions::minimize(element(safari)));
    EXPECT_FALSE(window(safari).minimized);
}

TEST_F(MinimizeMaximizeTest, TheMinimizeHotKeyLogsItsOutcome) {
    WindowActions::perform(element(safari), window(safari).pid, Hotkey::minimize);
    desktop.executor().runUntilIdle();

    EXPECT_EQ(log(), std::vector<std::string>{"did minimize window (pid 500, \"Start Page\") using "
                                              "hot key"});
}

TEST_F(MinimizeMaximizeTest, MaximizeLeavesMissionControlWithEscapeAndEntersFullScreen) {
    desktop.dock().launch();
    desktop.dock().open();

    EXPECT_TRUE(WindowActions::maximize(element(safari)));

    EXPECT_TRUE(window(safari).fullScreen);
    EXPECT_FALSE(desktop.dock().isOpen());
    EXPECT_EQ(desktop.windowServer().postedKeys, (PostedKeys{{escape, true}, {escape, false}}));
    EXPECT_NEAR(elapsedSince(start), fullScreenRound, virtualTimeSlack);
}

TEST_F(MinimizeMaximizeTest, MaximizeOnAFullScreenWindowLeavesFullScreen) {
    window(safari).fullScreen = true;

    EXPECT_TRUE(WindowActions::maximize(element(safari)));
    EXPECT_FALSE(window(safari).fullScreen);
}

TEST_F(MinimizeMaximizeTest, MaximizeFallsBackToTheFullScreenButton) {
    window(safari).fullScreenSettable = false;

    EXPECT_TRUE(WindowActions::maximize(element(safari)));
    EXPECT_TRUE(window(safari).fullScreen);
}

TEST_F(MinimizeMaximizeTest, MaximizeFailsWithoutTheAttributeOrTheButton) {
    window(safari).fullScreenSettable = false;
    window(safari).hasFullScreenButton = false;

    EXPECT_FALSE(WindowActions::maximize(element(safari)));
    EXPECT_FALSE(window(safari).fullScreen);
}

TEST_F(MinimizeMaximizeTest, AnUnknownMaximizeModeMeansFullScreen) {
    Shared::store()->set("maximizeMode", "zoom");

    EXPECT_TRUE(WindowActions::maximize(element(safari)));

    EXPECT_TRUE(window(safari).fullScreen);
    EXPECT_EQ(window(safari).frame, (Rect{100, 100, 800, 600}));
}

TEST_F(MinimizeMaximizeTest, TheMaximizeHotKeyLogsItsOutcome) {
    window(safari).fullScreenSettable = false;
    window(safari).hasFullScreenButton = false;

    WindowActions::perform(element(safari), window(safari).pid, Hotkey::maximize);
    desktop.executor().runUntilIdle();

    EXPECT_EQ(log(), std::vector<std::string>{"FAILED to maximize window (pid 500, \"Start Page\") "
                                              "using hot key"});
}

}  // namespace
}  // namespace vistrel
