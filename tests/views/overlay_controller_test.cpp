#include "views/overlay_controller.h"

#include <gtest/gtest.h>

#include "platform/display_list.h"
#include "platform/sim/sim_desktop.h"
#include "settings/preference_key.h"
#include "settings/shared.h"

namespace vistrel {
namespace {

constexpr std::string_view recreatedLine =
    "overlay window is not on the active space, recreating it";
const std::vector<OverlayButton> allButtons(allOverlayButtons.begin(), allOverlayButtons.end());

class OverlayControllerTest : public ::testing::Test {
  protected:
    SimAgentWindow& simWindow() {
        auto windows = desktop.windowHost().windows();
        EXPECT_EQ(windows.size(), 1u);
        return *windows.back();
    }

    void storeTheme(const char* raw) {
        Shared::store()->set(std::string(PreferenceKey::buttonTheme), raw);
    }

    OverlayLayout layoutAt(Point corner) {
        return OverlayLayout::make({corner.x, corner.y, 300, 200}, 20, allButtons, 4);
    }

    SimDesktop desktop;
    ScopedPlatform installed{desktop};
    OverlayController controller;
};

TEST_F(OverlayControllerTest, WindowIsAClickThroughOverlayAboveMissionControlOnEverySpace) {
    const SimAgentWindow& window = simWindow();
    EXPECT_EQ(window.level(), 1000);
    EXPECT_EQ(window.collectionBehavior(), 0x151u);
    EXPECT_TRUE(window.ignoresMouseEvents());
    EXPECT_FALSE(window.isVisible());
}

TEST_F(OverlayControllerTest, ShowPlacesTheWindowOverTheStripInAppKitCoordinates) {
    controller.show(layoutAt({100, 200}));
    // Buttons at x 87, 111 and 135, y 188, 20 points square; the screen is 900 points high.
    EXPECT_EQ(simWindow().frame(), (Rect{87, 900 - 208, 68, 20}));
    EXPECT_TRUE(simWindow().isVisible());
}

TEST_F(OverlayControllerTest, ItemsAreRelativeToTheWindowWithTheOriginAtItsBottomLeft) {
    OverlayLayout layout = layoutAt({100, 200});
    layout.items[1].rect.y += 6;  // a lower button: nearer the bottom of the window
    controller.show(layout);
    const auto& items = controller.view().items();
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0].rect, (Rect{0, 6, 20, 20}));
    EXPECT_EQ(items[1].rect, (Rect{24, 0, 20, 20}));
    EXPECT_EQ(items[2].rect, (Rect{48, 6, 20, 20}));
    EXPECT_EQ(simWindow().frame().height, 26);
}

TEST_F(OverlayControllerTest, ShowingTheSameLayoutTwiceOrdersTheWindowFrontOnce) {
    controller.show(layoutAt({100, 200}));
    const int drawings = simWindow().contentUpdates();
    controller.show(layoutAt({100, 200}));
    EXPECT_EQ(simWindow().orderFrontCount(), 1);
    EXPECT_EQ(simWindow().contentUpdates(), drawings);
}

TEST_F(OverlayControllerTest, ANewLayoutMovesAndRedrawsTheWindow) {
    controller.show(layoutAt({100, 200}));
    controller.show(layoutAt({400, 300}));
    EXPECT_EQ(simWindow().orderFrontCount(), 2);
    EXPECT_EQ(simWindow().frame().x, 387);
    EXPECT_EQ(controller.shown(), layoutAt({400, 300}));
}

TEST_F(OverlayControllerTest, AfterASpaceChangeTheNextShowRecreatesTheWindowAndLogsOnce) {
    controller.show(layoutAt({100, 200}));
    simWindow().leaveActiveSpace();
    controller.show(layoutAt({100, 200}));

    EXPECT_EQ(desktop.windowHost().windowsMade(), 2);
    EXPECT_EQ(desktop.systemLog().count(recreatedLine), 1u);
    const SimAgentWindow& fresh = simWindow();  // the old window is gone
    EXPECT_TRUE(fresh.isVisible());
    EXPECT_TRUE(fresh.isOnActiveSpace());
    EXPECT_EQ(fresh.frame(), (Rect{87, 692, 68, 20}));
    EXPECT_EQ(fresh.level(), 1000);
    EXPECT_EQ(fresh.collectionBehavior(), 0x151u);
    EXPECT_TRUE(fresh.ignoresMouseEvents());
    ASSERT_TRUE(fresh.content());
    EXPECT_EQ(fresh.content()->all<DisplayList::Fill>().size(), 3u);

    controller.show(layoutAt({100, 200}));
    EXPECT_EQ(desktop.windowHost().windowsMade(), 2);
    EXPECT_EQ(desktop.systemLog().count(recreatedLine), 1u);
}

TEST_F(OverlayControllerTest, EachRecreationLogsItsOwnLine) {
    controller.show(layoutAt({100, 200}));
    simWindow().leaveActiveSpace();
    controller.show(layoutAt({100, 200}));
    simWindow().leaveActiveSpace();
    controller.show(layoutAt({100, 200}));
    EXPECT_EQ(desktop.windowHost().windowsMade(), 3);
    EXPECT_EQ(desktop.systemLog().count(recreatedLine), 2u);
}

TEST_F(OverlayControllerTest, HideOrdersTheWindowOutAndForgetsTheLayout) {
    controller.show(layoutAt({100, 200}));
    controller.hide();
    EXPECT_FALSE(simWindow().isVisible());
    EXPECT_FALSE(controller.shown());
    EXPECT_EQ(desktop.windowHost().windowsMade(), 1);

    controller.show(layoutAt({100, 200}));
    EXPECT_TRUE(simWindow().isVisible());
    EXPECT_EQ(simWindow().orderFrontCount(), 2);
}

TEST_F(OverlayControllerTest, HideWithNothingShownLeavesTheWindowHidden) {
    controller.hide();
    EXPECT_FALSE(simWindow().isVisible());
    EXPECT_FALSE(controller.shown());
}

TEST_F(OverlayControllerTest, ALayoutShownIntoAHiddenWindowIsShownAgain) {
    controller.show(layoutAt({100, 200}));
    simWindow().orderOut();
    controller.show(layoutAt({100, 200}));
    EXPECT_TRUE(simWindow().isVisible());
}

TEST_F(OverlayControllerTest, SettingADifferentHoveredButtonRedrawsTheStrip) {
    controller.show(layoutAt({100, 200}));
    const int drawings = simWindow().contentUpdates();
    controller.setHovered(OverlayButton::maximize);
    EXPECT_EQ(controller.hovered(), OverlayButton::maximize);
    EXPECT_EQ(controller.view().hovered(), OverlayButton::maximize);
    EXPECT_EQ(simWindow().contentUpdates(), drawings + 1);
}

TEST_F(OverlayControllerTest, SettingTheSameHoveredButtonDoesNothing) {
    controller.show(layoutAt({100, 200}));
    controller.setHovered(OverlayButton::close);
    const int drawings = simWindow().contentUpdates();
    controller.setHovered(OverlayButton::close);
    EXPECT_EQ(simWindow().contentUpdates(), drawings);
    controller.setHovered(std::nullopt);
    EXPECT_EQ(simWindow().contentUpdates(), drawings + 1);
    EXPECT_FALSE(controller.view().hovered());
}

TEST_F(OverlayControllerTest, LooksComeFromTheStoredTheme) {
    storeTheme("graphite");
    controller.show(layoutAt({100, 200}));
    const Theme graphite = Theme::graphite;
    for (const auto& item : controller.view().items()) {
        EXPECT_EQ(item.look, graphite.look(item.button));
    }
}

TEST_F(OverlayControllerTest, NoStoredThemeMeansClassic) {
    controller.show(layoutAt({100, 200}));
    EXPECT_EQ(controller.view().items()[0].look, Theme(Theme::classic).look(OverlayButton::close));
}

TEST_F(OverlayControllerTest, AnUnknownOrMiscasedThemeMeansClassic) {
    for (const char* raw : {"Mono", "neon", ""}) {
        storeTheme(raw);
        controller.show(layoutAt({100, 200 + static_cast<double>(std::string_view(raw).size())}));
        EXPECT_EQ(controller.view().items()[2].look,
                  Theme(Theme::classic).look(OverlayButton::maximize))
            << raw;
    }
}

TEST_F(OverlayControllerTest, AThemeThatIsNotTextMeansClassic) {
    Shared::store()->set(std::string(PreferenceKey::buttonTheme), 3);
    controller.show(layoutAt({100, 200}));
    EXPECT_EQ(controller.view().items()[1].look,
              Theme(Theme::classic).look(OverlayButton::minimize));
}

TEST_F(OverlayControllerTest, ThemeIsReadAgainWhenTheLayoutChanges) {
    controller.show(layoutAt({100, 200}));
    storeTheme("mono");
    controller.show(layoutAt({120, 200}));
    EXPECT_EQ(controller.view().items()[0].look, Theme(Theme::mono).look(OverlayButton::close));
}

}  // namespace
}  // namespace vistrel
