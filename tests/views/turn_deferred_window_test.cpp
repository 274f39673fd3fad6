#include "views/turn_deferred_window.h"

#include <gtest/gtest.h>

#include "platform/platform.h"
#include "platform/sim/sim_window_host.h"
#include "support/sim_test.h"
#include "tracking/tap_callback.h"

namespace vistrel {
namespace {

constexpr Rect somewhere{100, 200, 300, 40};

class TurnDeferredWindowTest : public testing::SimTest {
  protected:
    TurnDeferredWindowTest() {
        window = std::make_unique<TurnDeferredWindow>(
            platform().windowHost.makeWindow(WindowDeferral::immediate));
        simulated = desktop.windowHost().windows().back();
    }

    SimQueue& mainQueue() { return desktop.executor().mainQueue(); }

    SimAgentWindow* simulated = nullptr;
    std::unique_ptr<TurnDeferredWindow> window;
};

TEST_F(TurnDeferredWindowTest, ChangesMadeInsideTheTapCallbackWaitForTheNextTurn) {
    {
        const TapCallback::Scope callback;
        window->setFrame(somewhere, true);
        window->setAlpha(0.5);
        window->orderFrontRegardless();
    }
    EXPECT_FALSE(simulated->isVisible());
    EXPECT_EQ(window->waiting(), 3u);
    EXPECT_EQ(window->frame(), somewhere) << "it answers what it is about to be";
    EXPECT_DOUBLE_EQ(window->alpha(), 0.5);
    EXPECT_TRUE(window->isVisible());

    mainQueue().runOne();
    EXPECT_TRUE(simulated->isVisible());
    EXPECT_EQ(simulated->frame(), somewhere);
    EXPECT_DOUBLE_EQ(simulated->alpha(), 0.5);
    EXPECT_EQ(window->waiting(), 0u);
}

TEST_F(TurnDeferredWindowTest, AChangeOutsideTheCallbackFirstAppliesThoseWaitingInTheirOrder) {
    {
        const TapCallback::Scope callback;
        window->orderFrontRegardless();
    }
    window->orderOut();
    EXPECT_EQ(simulated->orderFrontCount(), 1);
    EXPECT_FALSE(simulated->isVisible()) << "the later order out came last";
    mainQueue().runOne();
    EXPECT_FALSE(simulated->isVisible());
}

TEST_F(TurnDeferredWindowTest, OutsideTheCallbackAChangeIsAppliedAtOnce) {
    window->orderFrontRegardless();
    EXPECT_TRUE(simulated->isVisible());
    EXPECT_EQ(mainQueue().pending(), 0u);
}

}  // namespace
}  // namespace vistrel
