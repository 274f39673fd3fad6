#include <gtest/gtest.h>

#include "status_menu_fixture.h"
#include "ui/kit/dfkit_palette.h"

namespace vistrel::testing {
namespace {

using DFKitStatusPanelTest = StatusMenuTest;

TEST_F(DFKitStatusPanelTest, EscapeClosesThePanel) {
    open();
    panel().pressEscape();
    EXPECT_FALSE(panelOpen());
    EXPECT_FALSE(item().highlighted());
}

TEST_F(DFKitStatusPanelTest, LosingTheKeyboardClosesThePanel) {
    open();
    panel().resignKey();
    EXPECT_FALSE(panelOpen());
}

TEST_F(DFKitStatusPanelTest, AMouseDownInAnotherApplicationClosesThePanel) {
    open();
    EXPECT_EQ(desktop.eventMonitors().outsideMonitors(), 1u);
    desktop.eventMonitors().mouseDownOutside();
    EXPECT_FALSE(panelOpen());
    EXPECT_EQ(desktop.eventMonitors().outsideMonitors(), 0u);
}

TEST_F(DFKitStatusPanelTest, SwitchingToDarkWhileOpenRedrawsInTheDarkPalette) {
    open();
    const auto surfaceOf = [&] {
        return panel().content()->all<DisplayList::Fill>().front().color;
    };
    EXPECT_EQ(surfaceOf(), DFKit::surface.light);
    desktop.appearance().set(Appearance::dark);
    EXPECT_EQ(surfaceOf(), DFKit::surface.dark);
    const auto texts = panel().content()->all<DisplayList::Text>();
    for (const auto& text : texts)
        EXPECT_NE(text.run.color, DFKit::ink.light) << text.run.text;
}

TEST_F(DFKitStatusPanelTest, OpensInTheAppearanceOfTheMoment) {
    desktop.appearance().set(Appearance::dark);
    open();
    EXPECT_EQ(panel().content()->all<DisplayList::Fill>().front().color, DFKit::surface.dark);
}

TEST_F(DFKitStatusPanelTest, KeepsSixPointsFromTheScreenEdgeWhenTheItemSitsAtTheFarRight) {
    desktop.statusBar().rightInset = 0;
    open();
    const Rect visible = desktop.screens().front().visibleFrame;
    EXPECT_DOUBLE_EQ(panel().frame().maxX(), visible.maxX() - 6);
    EXPECT_GT(panel().shadowUpdates(), 0);
}

TEST_F(DFKitStatusPanelTest, HangsCentredUnderAnItemWithRoomAround) {
    desktop.statusBar().rightInset = 400;
    open();
    EXPECT_DOUBLE_EQ(panel().frame().midX(), item().buttonFrame()->midX());
}

TEST_F(DFKitStatusPanelTest, IsThreeHundredPointsWideWithItsRowsTwoHundredEightyFour) {
    open();
    EXPECT_DOUBLE_EQ(panel().frame().width, 300);
    for (const auto& row : controller->panel()->content().rows()) {
        if (row->leadingInset() == 0) {
            EXPECT_DOUBLE_EQ(row->frame().width, 284);
        }
    }
}

TEST_F(DFKitStatusPanelTest, AFlippedSwitchAnnouncesItsNewValue) {
    open();
    clickLabelled("Close window");
    ASSERT_EQ(panel().announcedValueChanges().size(), 1u);
    EXPECT_EQ(panel().accessibilityNodes()[panel().announcedValueChanges()[0]].label,
              "Close window");
}

TEST_F(DFKitStatusPanelTest, HoveringAMenuRowFillsItAndLeavingClearsIt) {
    open();
    DFKitView* quit = viewLabelled("Quit Vistrel");
    const auto fills = [&] { return panel().content()->all<DisplayList::Fill>().size(); };
    const std::size_t before = fills();
    panel().moveMouse(quit->frameInRoot().mid());
    EXPECT_EQ(fills(), before + 1);
    panel().moveMouse(std::nullopt);
    EXPECT_EQ(fills(), before);
}

TEST_F(DFKitStatusPanelTest, AWindowThatCannotBeMadeLeavesThePanelClosedWithALogLine) {
    desktop.panels().failPanels = true;
    clickItem();
    EXPECT_TRUE(desktop.panels().panels().empty());
    EXPECT_EQ(desktop.systemLog().count("status panel: the panel window could not be made"), 1u);
}

TEST_F(DFKitStatusPanelTest, AMissingStatusItemLeavesTheMenuQuiet) {
    desktop.statusBar().refuseItems = true;
    auto without = StatusMenuController::make();
    EXPECT_EQ(without->item(), nullptr);
    without->clicked();
    EXPECT_EQ(desktop.systemLog().count("status item could not be made"), 1u);
}

}  // namespace
}  // namespace vistrel::testing

namespace vistrel::testing {
namespace {

using DFKitStatusPanelFaultTest = StatusMenuTest;

TEST_F(DFKitStatusPanelFaultTest, AMissingFontIsLoggedOnceAndThePanelStillOpens) {
    desktop.fonts().missingResources.insert("GeistMono-Medium.ttf");
    DFKitFonts fonts;
    auto menu = StatusMenuController::make(&fonts);
    for (int opening = 0; opening < 2; ++opening) {
        menu->clicked();
        ASSERT_TRUE(menu->panel()->isVisible());
        menu->panel()->close();
        desktop.executor().advance(1);
    }
    EXPECT_EQ(
        desktop.systemLog().count("Duskfell: font GeistMono-Medium.ttf is missing from the bundle"),
        1u);
}

TEST_F(DFKitStatusPanelFaultTest, WithoutEventMonitorsThePanelStillOpensAndClosesOnAClick) {
    desktop.eventMonitors().failMonitors = true;
    clickItem();
    ASSERT_TRUE(panelOpen());
    clickItem();
    EXPECT_FALSE(panelOpen());
}

TEST_F(DFKitStatusPanelFaultTest, AMenuThatCannotAppearLeavesThePanelOpen) {
    desktop.menus().failPopUps = true;
    open();
    clickLabelled("More options");
    EXPECT_FALSE(desktop.menus().openMenu());
    EXPECT_TRUE(panelOpen());
}

TEST_F(DFKitStatusPanelFaultTest, WithoutAppearanceChangesThePanelOpensInTheAppearanceOfTheMoment) {
    desktop.appearance().failObserving = true;
    auto menu = StatusMenuController::make();
    desktop.appearance().set(Appearance::dark);
    menu->clicked();
    ASSERT_FALSE(desktop.panels().panels().empty());
    EXPECT_EQ(desktop.panels().panels().back()->content()->all<DisplayList::Fill>().front().color,
              DFKit::surface.dark);
}

}  // namespace
}  // namespace vistrel::testing
