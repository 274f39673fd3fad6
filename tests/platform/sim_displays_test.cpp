// The simulated desktop's displays come and go as a Mac's do: the agent is told in stages,
// not while the Mac sleeps, and the windows of an unplugged display move to the primary one.
#include <gtest/gtest.h>

#include "support/sim_test.h"

namespace vistrel::testing {
namespace {

constexpr std::uint32_t studio = 2;
constexpr Size studioSize{1920, 1080};

class SimDisplaysTest : public SimTest {
  protected:
    void SetUp() override {
        ASSERT_TRUE(desktop.displayWatch().start([this] { ++told; }));
    }
    SimWindowId window(Pid pid, Rect frame) {
        SimWindow window;
        window.frame = frame;
        return desktop.addWindow(pid, window);
    }
    int told = 0;
};

TEST_F(SimDisplaysTest, APlugIsToldNowAndAgainAMomentLater) {
    desktop.plugDisplay(studio, studioSize);
    desktop.executor().runUntilIdle();
    EXPECT_EQ(told, 1);
    desktop.executor().advance(1);
    EXPECT_EQ(told, 2);
    ASSERT_EQ(desktop.screens().size(), 2u);
    EXPECT_EQ(desktop.screens().back().displayID, studio);
}

TEST_F(SimDisplaysTest, TheWindowsOfAnUnpluggedDisplayMoveOntoThePrimaryOne) {
    desktop.plugDisplay(studio, studioSize);
    const Pid pid = desktop.addApplication({0, "com.apple.Notes", "Notes"});
    const SimWindowId onStudio = window(pid, {2000, 100, 800, 600});
    const SimWindowId tooLarge = window(pid, {1500, 30, 1800, 1000});
    const SimWindowId onLaptop = window(pid, {100, 100, 400, 300});

    desktop.unplugDisplay(studio);

    EXPECT_EQ(desktop.screens().size(), 1u);
    EXPECT_EQ(desktop.window(onStudio)->frame, (Rect{560, 125, 800, 600}));
    EXPECT_EQ(desktop.window(tooLarge)->frame, (Rect{0, 25, 1440, 805}));
    EXPECT_EQ(desktop.window(onLaptop)->frame, (Rect{100, 100, 400, 300}));
}

TEST_F(SimDisplaysTest, AMacOSThatLeavesWindowsOffScreenKeepsTheirCoordinates) {
    desktop.displayBehavior.unplugged = SimDisplayBehavior::Unplugged::leftOffScreen;
    desktop.plugDisplay(studio, studioSize);
    const SimWindowId onStudio =
        window(desktop.addApplication({0, "com.apple.Notes", "Notes"}), {2000, 100, 800, 600});
    desktop.unplugDisplay(studio);
    EXPECT_EQ(desktop.window(onStudio)->frame, (Rect{2000, 100, 800, 600}));
}

TEST_F(SimDisplaysTest, AMacOSThatRemembersPutsTheWindowsBackWhenTheDisplayReturns) {
    desktop.displayBehavior.replugRestores = true;
    desktop.plugDisplay(studio, studioSize);
    const SimWindowId onStudio =
        window(desktop.addApplication({0, "com.apple.Notes", "Notes"}), {2000, 100, 800, 600});
    desktop.unplugDisplay(studio);
    ASSERT_NE(desktop.window(onStudio)->frame, (Rect{2000, 100, 800, 600}));
    desktop.plugDisplay(studio, studioSize);
    EXPECT_EQ(desktop.window(onStudio)->frame, (Rect{2000, 100, 800, 600}));
}

TEST_F(SimDisplaysTest, AChangeToldAtOnceComesInOneNotification) {
    desktop.displayBehavior.toldInStages = false;
    desktop.plugDisplay(studio, studioSize);
    desktop.executor().advance(1);
    EXPECT_EQ(told, 1);
}

TEST_F(SimDisplaysTest, ClosingTheLidMakesTheOtherDisplayPrimaryAndOpeningItPutsThemBack) {
    desktop.plugDisplay(studio, studioSize);
    const Pid pid = desktop.addApplication({0, "com.apple.Notes", "Notes"});
    const SimWindowId onStudio = window(pid, {2000, 100, 800, 600});
    const SimWindowId onLaptop = window(pid, {100, 100, 400, 300});
    const auto arranged = desktop.screens();

    desktop.closeLid();

    ASSERT_EQ(desktop.screens().size(), 1u);
    EXPECT_EQ(desktop.screens().front().displayID, studio);
    EXPECT_EQ(desktop.screens().front().frame, (Rect{0, 0, 1920, 1080}));
    EXPECT_EQ(desktop.window(onStudio)->frame, (Rect{560, 100, 800, 600}));
    EXPECT_EQ(desktop.window(onLaptop)->frame, (Rect{100, 125, 400, 300}));

    desktop.openLid();

    EXPECT_EQ(desktop.screens(), arranged);
    EXPECT_EQ(desktop.window(onStudio)->frame, (Rect{2000, 100, 800, 600}));
}

TEST_F(SimDisplaysTest, ClosingTheLidWithNoOtherDisplaySleepsAndOpeningItWakes) {
    desktop.closeLid();
    EXPECT_TRUE(desktop.suspended());
    EXPECT_EQ(desktop.screens().size(), 1u);
    desktop.openLid();
    EXPECT_FALSE(desktop.suspended());
}

TEST_F(SimDisplaysTest, NothingIsToldWhileTheMacSleepsAndAChangeMeanwhileIsToldOnWaking) {
    desktop.suspend();
    desktop.plugDisplay(studio, studioSize);
    desktop.executor().advance(1);
    EXPECT_EQ(told, 0);
    desktop.wake();
    desktop.executor().advance(1);
    EXPECT_EQ(told, 3);  // the wake, then the plug's two stages
}

TEST_F(SimDisplaysTest, AWakeIsToldEvenWhenNothingChanged) {
    desktop.suspend();
    desktop.wake();
    desktop.executor().advance(1);
    EXPECT_EQ(told, 1);
}

TEST_F(SimDisplaysTest, ARefusingWatchTellsNothing) {
    desktop.displayWatch().stop();
    desktop.displayWatch().refuses = true;
    EXPECT_FALSE(desktop.displayWatch().start([this] { ++told; }));
    desktop.plugDisplay(studio, studioSize);
    desktop.executor().advance(1);
    EXPECT_EQ(told, 0);
}

}  // namespace
}  // namespace vistrel::testing
