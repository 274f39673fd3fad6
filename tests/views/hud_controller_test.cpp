#include "views/hud_controller.h"

#include <gtest/gtest.h>

#include "platform/display_list.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

constexpr Point screenCentre{720, 450};
constexpr double toastSeconds = 1.5;

class HUDControllerTest : public testing::SimTest {
  protected:
    const SimAgentWindow& simWindow() {
        const auto windows = desktop.windowHost().windows();
        EXPECT_EQ(windows.size(), 1u);
        return *windows.back();
    }

    void advance(double seconds) { desktop.executor().advance(seconds); }

    HUDController hud;
};

TEST_F(HUDControllerTest, WindowIsMadeOnlyForTheFirstMessage) {
    EXPECT_EQ(hud.window(), nullptr);
    EXPECT_EQ(desktop.windowHost().windowsMade(), 0);
    hud.present("Saved", std::nullopt, screenCentre);
    hud.present("Deleted", std::nullopt, screenCentre);
    EXPECT_NE(hud.window(), nullptr);
    EXPECT_EQ(desktop.windowHost().windowsMade(), 1);
}

TEST_F(HUDControllerTest, WindowIsAClickThroughImmediateWindowAtLevel1002OnEverySpace) {
    hud.present("Saved", std::nullopt, screenCentre);
    EXPECT_EQ(simWindow().level(), 1002);
    EXPECT_EQ(simWindow().collectionBehavior(), 0x151u);
    EXPECT_TRUE(simWindow().ignoresMouseEvents());
    EXPECT_EQ(simWindow().deferral(), WindowDeferral::immediate);
}

TEST_F(HUDControllerTest, WindowTakesTheLevelItWasMadeFor) {
    HUDController lower(AgentWindowLevel::outline);
    lower.present("Halves", std::nullopt, screenCentre);
    EXPECT_EQ(simWindow().level(), 1001);
}

TEST_F(HUDControllerTest, PresentShowsTheMessageAndMiniatureInTheView) {
    const UnitRect leftHalf{0, 0, 0.5, 1};
    hud.present("Left Half", leftHalf, screenCentre);
    EXPECT_TRUE(hud.isVisible());
    EXPECT_EQ(hud.view().message(), "Left Half");
    EXPECT_EQ(hud.view().unit(), leftHalf);
    const auto texts = simWindow().content()->all<DisplayList::Text>();
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].run.text, "Left Half");
}

TEST_F(HUDControllerTest, WindowIsSizedToTheMessageAndCentredOnThePointInScreenCoordinates) {
    hud.present("Saved \u201CWork\u201D", std::nullopt, {400, 300});
    const Size size = HUDView::measure("Saved \u201CWork\u201D", false);
    const Rect frame = simWindow().frame();
    EXPECT_EQ(frame.size(), size);
    EXPECT_NEAR(frame.midX(), 400, 0.5);
    // 300 points from the top of a 900-point screen is 600 from its bottom.
    EXPECT_NEAR(frame.midY(), 600, 0.5);
    EXPECT_EQ(frame.x, std::round(frame.x)) << "placed on whole points";
}

TEST_F(HUDControllerTest, MiniatureWidensTheWindow) {
    hud.present("Left Half", std::nullopt, screenCentre);
    const double plain = simWindow().frame().width;
    hud.present("Left Half", UnitRect{0, 0, 0.5, 1}, screenCentre);
    EXPECT_EQ(simWindow().frame().width, HUDView::measure("Left Half", true).width);
    EXPECT_GT(simWindow().frame().width, plain);
}

TEST_F(HUDControllerTest, PresentedMessageStaysUntilHidden) {
    hud.present("Halves: click the window for slot 1 of 2. Esc cancels.", std::nullopt,
                screenCentre);
    EXPECT_FALSE(hud.hidePending());
    advance(60);
    EXPECT_TRUE(hud.isVisible());
}

TEST_F(HUDControllerTest, FlashHidesAfterItsSeconds) {
    hud.flash("Saved", std::nullopt, screenCentre, toastSeconds);
    EXPECT_TRUE(hud.hidePending());
    advance(toastSeconds - 0.01);
    EXPECT_TRUE(hud.isVisible());
    advance(0.02);
    EXPECT_FALSE(hud.isVisible());
    EXPECT_FALSE(hud.hidePending());
}

TEST_F(HUDControllerTest, FlashArmsOneMainRunLoopTimerForItsSeconds) {
    hud.flash("Saved", std::nullopt, screenCentre, toastSeconds);
    const auto timers = desktop.executor().timers();
    ASSERT_EQ(timers.size(), 1u);
    EXPECT_EQ(timers[0].interval, toastSeconds);
}

TEST_F(HUDControllerTest, PresentBeforeTheFlashEndsCancelsItsHide) {
    hud.flash("Saved", std::nullopt, screenCentre, toastSeconds);
    advance(0.5);
    hud.present("Thirds: click the window for slot 1 of 3. Esc cancels.", std::nullopt,
                screenCentre);
    EXPECT_FALSE(hud.hidePending());
    advance(toastSeconds * 4);
    EXPECT_TRUE(hud.isVisible());
}

TEST_F(HUDControllerTest, SecondFlashRestartsTheTime) {
    hud.flash("Saved", std::nullopt, screenCentre, toastSeconds);
    advance(1.0);
    hud.flash("Deleted", std::nullopt, screenCentre, toastSeconds);
    advance(1.0);  // the first flash's time is up
    EXPECT_TRUE(hud.isVisible());
    EXPECT_EQ(hud.view().message(), "Deleted");
    advance(0.6);
    EXPECT_FALSE(hud.isVisible());
}

TEST_F(HUDControllerTest, HideCancelsThePendingHideAndOrdersTheWindowOut) {
    hud.flash("Saved", std::nullopt, screenCentre, toastSeconds);
    hud.hide();
    EXPECT_FALSE(hud.isVisible());
    EXPECT_FALSE(hud.hidePending());
    EXPECT_FALSE(desktop.executor().nextEventTime()) << "the timer is cancelled";
    hud.present("Halves", std::nullopt, screenCentre);
    advance(toastSeconds * 2);
    EXPECT_TRUE(hud.isVisible());
}

TEST_F(HUDControllerTest, HideOnANeverShownHUDMakesNoWindow) {
    hud.hide();
    EXPECT_EQ(hud.window(), nullptr);
    EXPECT_EQ(desktop.windowHost().windowsMade(), 0);
}

TEST_F(HUDControllerTest, FreeingTheControllerCancelsItsHide) {
    auto owned = std::make_unique<HUDController>();
    owned->flash("Saved", std::nullopt, screenCentre, toastSeconds);
    owned.reset();
    EXPECT_FALSE(desktop.executor().nextEventTime());
    advance(toastSeconds * 2);
    EXPECT_TRUE(desktop.windowHost().windows().empty());
}

}  // namespace
}  // namespace vistrel
