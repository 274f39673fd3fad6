#include <gtest/gtest.h>

#include "platform/sim/sim_desktop.h"

namespace vistrel {
namespace {

// A simulated agent window fades in the desktop's virtual time, as the animator fades it.
class SimWindowFadeTest : public ::testing::Test {
  protected:
    SimAgentWindow& window() { return *desktop.windowHost().windows().front(); }
    void advance(double seconds) { desktop.executor().advance(seconds); }

    SimDesktop desktop;
    std::unique_ptr<AgentWindow> made = desktop.windowHost().makeWindow(WindowDeferral::immediate);
    int done = 0;
};

TEST_F(SimWindowFadeTest, AlphaMovesInAStraightLineOverTheFade) {
    made->fade(0, 1.0, [this] { ++done; });
    EXPECT_EQ(made->alpha(), 1);
    advance(0.25);
    EXPECT_NEAR(made->alpha(), 0.75, 1e-9);
    EXPECT_TRUE(window().isFading());
    EXPECT_EQ(done, 0);
}

TEST_F(SimWindowFadeTest, DoneComesOnTheMainQueueWhenTheFadeEnds) {
    made->fade(0, 1.0, [this] { ++done; });
    advance(0.99);
    EXPECT_EQ(done, 0);
    advance(0.02);
    EXPECT_EQ(done, 1);
    EXPECT_EQ(made->alpha(), 0);
    EXPECT_FALSE(window().isFading());
}

TEST_F(SimWindowFadeTest, SettingTheAlphaStopsTheFadeButItsDoneStillComes) {
    made->fade(0, 1.0, [this] { ++done; });
    advance(0.5);
    made->setAlpha(1);
    advance(0.6);
    EXPECT_EQ(made->alpha(), 1);
    EXPECT_EQ(done, 1);
}

TEST_F(SimWindowFadeTest, ALaterFadeStartsWhereTheEarlierOneHadGot) {
    made->fade(0, 1.0, nullptr);
    advance(0.5);
    made->fade(1, 1.0, nullptr);
    advance(0.5);
    EXPECT_NEAR(made->alpha(), 0.75, 1e-9);
    advance(0.5);
    EXPECT_EQ(made->alpha(), 1) << "the earlier fade's end leaves the later one alone";
}

TEST_F(SimWindowFadeTest, WindowFreedDuringAFadeStillGetsItsDoneCalled) {
    made->fade(0, 1.0, [this] { ++done; });
    made.reset();
    advance(1.5);
    EXPECT_EQ(done, 1);
}

}  // namespace
}  // namespace vistrel
