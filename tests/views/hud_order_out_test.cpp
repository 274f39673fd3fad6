#include <gtest/gtest.h>

#include "support/sim_test.h"
#include "views/hud_controller.h"

namespace vistrel {
namespace {

constexpr Point screenCentre{720, 450};
constexpr double toastSeconds = 1.5;

// The HUD's window is ordered out only while it is on screen: ordering out a hidden window
// costs a round trip to the window server for nothing.
class HUDOrderOutTest : public testing::SimTest {
  protected:
    const SimAgentWindow& hudWindow() { return *desktop.windowHost().windows().front(); }

    HUDController hud;
};

TEST_F(HUDOrderOutTest, HidingAShownHUDOrdersItsWindowOutOnce) {
    hud.present("Saved", std::nullopt, screenCentre);
    hud.hide();
    EXPECT_EQ(hudWindow().orderOutCount(), 1);
    EXPECT_FALSE(hud.isVisible());
}

TEST_F(HUDOrderOutTest, HidingAHiddenHUDDoesNotOrderItsWindowOutAgain) {
    hud.present("Saved", std::nullopt, screenCentre);
    hud.hide();
    hud.hide();
    EXPECT_EQ(hudWindow().orderOutCount(), 1);
}

TEST_F(HUDOrderOutTest, FlashEndingAfterAHideOrdersNothingOut) {
    hud.flash("Saved", std::nullopt, screenCentre, toastSeconds);
    hud.hide();
    hud.flash("Deleted", std::nullopt, screenCentre, toastSeconds);
    desktop.executor().advance(toastSeconds);
    EXPECT_EQ(hudWindow().orderOutCount(), 2);
    hud.hide();
    EXPECT_EQ(hudWindow().orderOutCount(), 2);
}

}  // namespace
}  // namespace vistrel
