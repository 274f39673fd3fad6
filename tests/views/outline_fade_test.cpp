#include <gtest/gtest.h>

#include "support/sim_test.h"
#include "views/outline_controller.h"

namespace vistrel {
namespace {

constexpr Rect windowFrame{100, 200, 300, 150};
constexpr Rect slotFrame{600, 100, 400, 300};
constexpr double fadeDelay = 1.0;
constexpr double fadeSeconds = OutlineController::fadeSeconds;

// The bars' fade runs in the desktop's virtual time, as the animator runs it on a Mac.
class OutlineFadeTest : public testing::SimTest {
  protected:
    std::vector<SimAgentWindow*> bars() { return desktop.windowHost().windows(); }

    int visibleBars() {
        int visible = 0;
        for (const SimAgentWindow* bar : bars())
            visible += bar->isVisible() ? 1 : 0;
        return visible;
    }

    void advance(double seconds) { desktop.executor().advance(seconds); }

    OutlineController outline;
};

TEST_F(OutlineFadeTest, BarsFadeOutOverAQuarterOfASecond) {
    outline.flash(windowFrame, fadeDelay);
    advance(fadeDelay + fadeSeconds / 2);
    EXPECT_EQ(visibleBars(), 4);
    for (const SimAgentWindow* bar : bars())
        EXPECT_NEAR(bar->alpha(), 0.5, 0.01) << "half way through the fade";
    advance(fadeSeconds / 2 - 0.01);
    EXPECT_EQ(visibleBars(), 4) << "still fading";
    advance(0.02);
    EXPECT_EQ(visibleBars(), 0);
}

TEST_F(OutlineFadeTest, BarsAreOrderedOutOnlyWhenTheFadeHasEnded) {
    outline.flash(windowFrame, fadeDelay);
    advance(fadeDelay + fadeSeconds - 0.01);
    for (const SimAgentWindow* bar : bars())
        EXPECT_EQ(bar->orderOutCount(), 0);
    advance(0.02);
    for (const SimAgentWindow* bar : bars()) {
        EXPECT_EQ(bar->orderOutCount(), 1);
        EXPECT_EQ(bar->alpha(), 0);
    }
}

TEST_F(OutlineFadeTest, FlashArrivingDuringAFadeKeepsItsBarsOpaque) {
    outline.flash(windowFrame, fadeDelay);
    advance(fadeDelay + fadeSeconds / 2);
    outline.flash(slotFrame, fadeDelay);
    advance(fadeSeconds);  // the first fade's end has come and gone
    EXPECT_EQ(visibleBars(), 4);
    for (const SimAgentWindow* bar : bars()) {
        EXPECT_EQ(bar->alpha(), 1);
        EXPECT_FALSE(bar->isFading());
    }
    EXPECT_EQ(outline.bar(0)->frame().x, slotFrame.x);
}

TEST_F(OutlineFadeTest, FlashArrivingDuringAFadeFadesAfterItsOwnSeconds) {
    outline.flash(windowFrame, fadeDelay);
    advance(fadeDelay + fadeSeconds / 2);
    outline.flash(slotFrame, fadeDelay);
    advance(fadeDelay + fadeSeconds - 0.01);
    EXPECT_EQ(visibleBars(), 4);
    advance(0.02);
    EXPECT_EQ(visibleBars(), 0);
}

TEST_F(OutlineFadeTest, HideDuringAFadeOrdersTheBarsOutAtOnce) {
    outline.flash(windowFrame, fadeDelay);
    advance(fadeDelay + fadeSeconds / 2);
    outline.hide();
    EXPECT_EQ(visibleBars(), 0);
    advance(fadeSeconds);
    for (const SimAgentWindow* bar : bars())
        EXPECT_EQ(bar->orderOutCount(), 1) << "the fade's end orders nothing out again";
}

}  // namespace
}  // namespace vistrel
