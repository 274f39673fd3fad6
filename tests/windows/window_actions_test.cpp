#include "windows/window_actions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "window_test.h"

namespace vistrel {
namespace {

using testing::WindowTest;

constexpr Pid notesPid = 512;
constexpr Rect notesFrame{200, 150, 600, 400};

class WindowActionsTest : public WindowTest {
  protected:
    WindowActionsTest() {
        addApp("com.apple.Notes", "Notes", ActivationPolicy::regular, notesPid);
        notes = addWindow(notesPid, "Notes", notesFrame);
    }

    void perform(Hotkey hotkey) { WindowActions::perform(element(notes), notesPid, hotkey); }

    SimWindowId notes = 0;
};

TEST_F(WindowActionsTest, PerformReturnsBeforeTheActionRunsAndTheQueueThenClosesTheWindow) {
    perform(Hotkey::close);
    EXPECT_FALSE(window(notes).closed);
    EXPECT_TRUE(log().empty());

    desktop.executor().runUntilIdle();

    EXPECT_TRUE(window(notes).closed);
    EXPECT_EQ(log(),
              std::vector<std::string>{"did close window (pid 512, \"Notes\") using hot key"});
}

TEST_F(WindowActionsTest, ActionsRunOnOneUserInitiatedQueueMadeOnFirstUse) {
    EXPECT_EQ(desktop.executor().queue("com.quillmarsh.vistrel.accessibility"), nullptr);

    perform(Hotkey::close);
    perform(Hotkey::minimize);

    auto queue = desktop.executor().queue("com.quillmarsh.vistrel.accessibility");
    ASSERT_NE(queue, nullptr);
    EXPECT_EQ(queue->quality(), QualityOfService::userInitiated);
    EXPECT_EQ(queue->pending(), 2u);
    EXPECT_EQ(WindowActions::queue().get(), queue.get());
}

TEST_F(WindowActionsTest, TwoActionsRunOneAfterTheOtherInTheOrderAsked) {
    const SimWindowId other = addWindow(notesPid, "Shopping", {900, 150, 300, 300});
    window(notes).minimizeBehavior = MinimizeBehavior::never;

    perform(Hotkey::minimize);
    WindowActions::perform(element(other), notesPid, Hotkey::close);
    desktop.executor().runUntilIdle();

    EXPECT_EQ(log(), (std::vector<std::string>{
                         "FAILED to minimize window (pid 512, \"Notes\") using hot key",
                         "did close window (pid 512, \"Shopping\") using hot key"}));
}

TEST_F(WindowActionsTest, AWindowWithoutACloseButtonIsNotClosedAndTheLineSaysFailed) {
    window(notes).hasCloseButton = false;

    perform(Hotkey::close);
    desktop.executor().runUntilIdle();

    EXPECT_FALSE(window(notes).closed);
    EXPECT_EQ(log(), std::vector<std::string>{
                         "FAILED to close window (pid 512, \"Notes\") using hot key"});
}

TEST_F(WindowActionsTest, AWindowThatClosesBeforeTheActionRunsFailsWithExactlyOneLine) {
    perform(Hotkey::close);
    desktop.closeWindow(notes);
    desktop.executor().runUntilIdle();

    // The title cannot be read any more either.
    EXPECT_EQ(log(),
              std::vector<std::string>{"FAILED to close window (pid 512, \"\") using hot key"});
}

TEST_F(WindowActionsTest, TheWindowGetsAOneSecondTimeOutForTheAction) {
    perform(Hotkey::close);
    desktop.executor().runUntilIdle();

    EXPECT_FLOAT_EQ(desktop.accessibility().messagingTimeout(element(notes)), 1.0f);
}

TEST_F(WindowActionsTest, AHungApplicationCostsTheOneSecondTimeOutPerCallNotTheSystemDefault) {
    desktop.application(notesPid)->hung = true;
    const double start = desktop.clock().now();

    perform(Hotkey::close);
    desktop.executor().runUntilIdle();

    // The title read and the close-button read each give up after one second.
    EXPECT_NEAR(elapsedSince(start), 2.0, 1e-6);
    EXPECT_EQ(log(),
              std::vector<std::string>{"FAILED to close window (pid 512, \"\") using hot key"});
}

TEST_F(WindowActionsTest, HideHidesTheWindowsApplication) {
    perform(Hotkey::hide);
    desktop.executor().runUntilIdle();

    EXPECT_TRUE(desktop.application(notesPid)->hidden);
    EXPECT_EQ(log(), std::vector<std::string>{
                         "did hide app containing window (pid 512, \"Notes\") using hot key"});
}

TEST_F(WindowActionsTest, KillForceQuitsTheWindowsApplication) {
    perform(Hotkey::kill);
    desktop.executor().runUntilIdle();

    EXPECT_TRUE(desktop.application(notesPid)->terminated);
    EXPECT_EQ(log(), std::vector<std::string>{
                         "did kill app containing window (pid 512, \"Notes\") using hot key"});
}

TEST_F(WindowActionsTest, HideAndKillFailForAnApplicationThatHasQuit) {
    perform(Hotkey::hide);
    perform(Hotkey::kill);
    desktop.application(notesPid)->terminated = true;
    desktop.executor().runUntilIdle();

    EXPECT_EQ(log(), (std::vector<std::string>{
                         "FAILED to hide app containing window (pid 512, \"\") using hot key",
                         "FAILED to kill app containing window (pid 512, \"\") using hot key"}));
}

TEST_F(WindowActionsTest, CloseAllPressesTheCloseButtonOfEveryWindowOfTheApplication) {
    const SimWindowId second = addWindow(notesPid, "Shopping", {900, 150, 300, 300});
    const Pid otherPid = addApp("com.apple.TextEdit", "TextEdit");
    const SimWindowId foreign = addWindow(otherPid, "Untitled", {100, 600, 300, 200});

    perform(Hotkey::closeAll);
    desktop.executor().runUntilIdle();

    EXPECT_TRUE(window(notes).closed);
    EXPECT_TRUE(window(second).closed);
    EXPECT_FALSE(window(foreign).closed);
    EXPECT_EQ(log(),
              std::vector<std::string>{"did close all windows (pid 512, \"Notes\") using hot key"});
}

TEST_F(WindowActionsTest, CloseAllGoesOnPastAWindowWithoutACloseButton) {
    const SimWindowId behind = addWindow(notesPid, "Shopping", {900, 150, 300, 300});
    window(behind).hasCloseButton = false;
    const SimWindowId front = addWindow(notesPid, "Recipes", {300, 300, 300, 300});

    EXPECT_TRUE(WindowActions::closeAll(notesPid));

    EXPECT_TRUE(window(front).closed);
    EXPECT_FALSE(window(behind).closed);
    EXPECT_TRUE(window(notes).closed);
}

TEST_F(WindowActionsTest, CloseAllFailsWhenNoPressWorks) {
    window(notes).hasCloseButton = false;

    EXPECT_FALSE(WindowActions::closeAll(notesPid));
}

TEST_F(WindowActionsTest, CloseAllOnAnApplicationWithoutWindowsReturnsFalse) {
    const Pid empty = addApp("com.apple.Terminal", "Terminal");

    EXPECT_FALSE(WindowActions::closeAll(empty));
}

TEST_F(WindowActionsTest, CloseAllGivesTheApplicationAOneSecondTimeOut) {
    WindowActions::closeAll(notesPid);

    EXPECT_FLOAT_EQ(
        desktop.accessibility().messagingTimeout(desktop.accessibility().application(notesPid)),
        1.0f);
}

}  // namespace
}  // namespace vistrel
