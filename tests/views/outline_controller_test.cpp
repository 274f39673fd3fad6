#include "views/outline_controller.h"

#include <gtest/gtest.h>

#include "platform/display_list.h"
#include "support/sim_test.h"
#include "views/layouts_ui.h"

namespace vistrel {
namespace {

// The simulated screen is 900 points high: AppKit's y is 900 minus the accessibility maxY.
constexpr Rect windowFrame{100, 200, 300, 150};
constexpr Rect slotFrame{600, 100, 400, 300};
constexpr double fadeDelay = 1.0;
// The bars' fade runs in the desktop's virtual time, as the animator runs it on a Mac.
constexpr double fadeSeconds = OutlineController::fadeSeconds;

class OutlineControllerTest : public testing::SimTest {
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

TEST_F(OutlineControllerTest, NoBarIsMadeBeforeTheFirstFlash) {
    outline.hide();
    EXPECT_EQ(desktop.windowHost().windowsMade(), 0);
    EXPECT_EQ(outline.bar(0), nullptr);
}

TEST_F(OutlineControllerTest, FourBarsAreMadeOnTheFirstFlashAndKept) {
    outline.flash(windowFrame, fadeDelay);
    outline.flash(windowFrame.offsetBy(50, 50), fadeDelay);
    EXPECT_EQ(desktop.windowHost().windowsMade(), 4);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_NE(outline.bar(i), nullptr) << "bar " << i;
}

TEST_F(OutlineControllerTest, BarsAreClickThroughImmediateWindowsAtLevel1001OnEverySpace) {
    outline.flash(windowFrame, fadeDelay);
    for (const SimAgentWindow* bar : bars()) {
        EXPECT_EQ(bar->level(), 1001);
        EXPECT_EQ(bar->collectionBehavior(), 0x151u);
        EXPECT_TRUE(bar->ignoresMouseEvents());
        EXPECT_EQ(bar->deferral(), WindowDeferral::immediate);
    }
}

TEST_F(OutlineControllerTest, BarsFrameTheRectangleThreePointsThickInScreenCoordinates) {
    outline.flash(windowFrame, fadeDelay);
    // Top, bottom, left, right; the side bars fit between the top and the bottom one.
    EXPECT_EQ(outline.bar(0)->frame(), (Rect{100, 697, 300, 3}));
    EXPECT_EQ(outline.bar(1)->frame(), (Rect{100, 550, 300, 3}));
    EXPECT_EQ(outline.bar(2)->frame(), (Rect{100, 553, 3, 144}));
    EXPECT_EQ(outline.bar(3)->frame(), (Rect{397, 553, 3, 144}));
}

TEST_F(OutlineControllerTest, FractionalRectangleIsWidenedToWholePoints) {
    // Edges 10.4 to 110.6 and 20.6 to 70.7 become 10 to 111 and 20 to 71.
    outline.flash({10.4, 20.6, 100.2, 50.1}, fadeDelay);
    EXPECT_EQ(outline.bar(0)->frame(), (Rect{10, 877, 101, 3}));
    EXPECT_EQ(outline.bar(3)->frame(), (Rect{108, 832, 3, 45}));
}

TEST_F(OutlineControllerTest, FlashShowsEveryBarOpaque) {
    outline.flash(windowFrame, fadeDelay);
    EXPECT_EQ(visibleBars(), 4);
    for (const SimAgentWindow* bar : bars())
        EXPECT_EQ(bar->alpha(), 1);
}

TEST_F(OutlineControllerTest, EachBarIsFilledWithTheAccentOverItsBounds) {
    outline.flash(windowFrame, fadeDelay);
    for (const SimAgentWindow* bar : bars()) {
        ASSERT_NE(bar->content(), nullptr);
        const auto fills = bar->content()->all<DisplayList::Fill>();
        ASSERT_EQ(fills.size(), 1u);
        EXPECT_EQ(fills[0].color, LayoutsUI::accent);
        EXPECT_EQ(fills[0].path, Path::rect(Rect::of({}, bar->frame().size())));
    }
}

TEST_F(OutlineControllerTest, RectangleSixPointsWideOrHighOrLessShowsNothing) {
    for (const Rect small : {Rect{10, 10, 6, 100}, Rect{10, 10, 100, 6}, Rect{10, 10, 2, 2},
                             Rect{10.2, 10, 5.5, 100}}) {
        outline.flash(small, fadeDelay);
        EXPECT_EQ(visibleBars(), 0) << small.width << " x " << small.height;
    }
}

TEST_F(OutlineControllerTest, RectangleSevenPointsWideIsOutlined) {
    outline.flash({10, 10, 7, 7}, fadeDelay);
    EXPECT_EQ(visibleBars(), 4);
    EXPECT_EQ(outline.bar(2)->frame().height, 1);
}

TEST_F(OutlineControllerTest, TooSmallFlashTakesAwayTheOutlineShownBefore) {
    outline.flash(windowFrame, fadeDelay);
    outline.flash({10, 10, 4, 4}, fadeDelay);
    EXPECT_EQ(visibleBars(), 0);
}

TEST_F(OutlineControllerTest, BarsFadeAndGoAfterTheGivenSeconds) {
    outline.flash(windowFrame, fadeDelay);
    advance(fadeDelay - 0.01);
    EXPECT_EQ(visibleBars(), 4);
    advance(0.02 + fadeSeconds);
    EXPECT_EQ(visibleBars(), 0);
    for (const SimAgentWindow* bar : bars())
        EXPECT_EQ(bar->alpha(), 0);
}

TEST_F(OutlineControllerTest, OnlyTheLaterOfTwoQuickFlashesFadesTheBars) {
    outline.flash(windowFrame, fadeDelay);
    advance(0.5);
    outline.flash(slotFrame, fadeDelay);
    advance(0.6);  // the first flash's time is up, but the bars are the second's now
    EXPECT_EQ(visibleBars(), 4);
    EXPECT_EQ(outline.bar(0)->alpha(), 1);
    EXPECT_EQ(outline.bar(0)->frame().x, 600);
    advance(0.5 + fadeSeconds);
    EXPECT_EQ(visibleBars(), 0);
}

TEST_F(OutlineControllerTest, HideOrdersAllBarsOutAtOnce) {
    outline.flash(windowFrame, fadeDelay);
    outline.hide();
    EXPECT_EQ(visibleBars(), 0);
}

TEST_F(OutlineControllerTest, FadeDueAfterAHideLeavesTheBarsAlone) {
    outline.flash(windowFrame, fadeDelay);
    outline.hide();
    advance(fadeDelay * 2);
    for (const SimAgentWindow* bar : bars())
        EXPECT_EQ(bar->alpha(), 1) << "no fade was started";
}

TEST_F(OutlineControllerTest, GenerationCountsEveryFlashAndEveryHide) {
    EXPECT_EQ(outline.generation(), 0u);
    outline.flash(windowFrame, fadeDelay);
    outline.flash({0, 0, 3, 3}, fadeDelay);
    outline.hide();
    EXPECT_EQ(outline.generation(), 3u);
}

TEST_F(OutlineControllerTest, FadeDueAfterTheControllerIsGoneDoesNothing) {
    auto owned = std::make_unique<OutlineController>();
    owned->flash(windowFrame, fadeDelay);
    owned.reset();
    advance(fadeDelay * 2);
    EXPECT_TRUE(desktop.windowHost().windows().empty());
}

TEST_F(OutlineControllerTest, BarsFadeOutOverAQuarterOfASecond) {
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

TEST_F(OutlineControllerTest, BarsAreOrderedOutOnlyWhenTheFadeHasEnded) {
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

TEST_F(OutlineControllerTest, FlashArrivingDuringAFadeKeepsItsBarsOpaque) {
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

TEST_F(OutlineControllerTest, FlashArrivingDuringAFadeFadesAfterItsOwnSeconds) {
    outline.flash(windowFrame, fadeDelay);
    advance(fadeDelay + fadeSeconds / 2);
    outline.flash(slotFrame, fadeDelay);
    advance(fadeDelay + fadeSeconds - 0.01);
    EXPECT_EQ(visibleBars(), 4);
    advance(0.02);
    EXPECT_EQ(visibleBars(), 0);
}

TEST_F(OutlineControllerTest, HideDuringAFadeOrdersTheBarsOutAtOnce) {
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
