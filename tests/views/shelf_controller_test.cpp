#include "views/shelf_controller.h"

#include <gtest/gtest.h>

#include "platform/display_list.h"
#include "platform/sim/sim_window_host.h"
#include "support/sim_test.h"
#include "views/shelf_cell_painter.h"
#include "views/shelf_style.h"

namespace vistrel {
namespace {

constexpr std::string_view recreatedLine =
    "layouts shelf is not on the active space, recreating it";
constexpr double screenHeight = 900;  // the simulated primary screen
constexpr Rect area{0, 25, 1440, 805};

Rect inAppKit(Rect rect) {
    return {rect.x, screenHeight - rect.maxY(), rect.width, rect.height};
}

class ShelfControllerTest : public testing::SimTest {
  protected:
    ShelfControllerTest() {
        state.saved = {{{}, "Work", {{"com.apple.Safari", "", "", {0, 0, 1, 1}, {}}}, 0}};
        state.templates = LayoutTemplate::all();
    }

    ShelfState folded() const {
        ShelfState made = state;
        made.folded = true;
        return made;
    }

    SimAgentWindow& simWindow() {
        auto windows = desktop.windowHost().windows();
        EXPECT_EQ(windows.size(), 1u);
        return *windows.back();
    }

    ShelfController controller;
    ShelfLayout layout = ShelfLayout::make(1, 5, area);
    ShelfState state;
};

TEST_F(ShelfControllerTest, NoWindowIsMadeBeforeTheShelfIsFirstShown) {
    EXPECT_EQ(desktop.windowHost().windowsMade(), 0);
    EXPECT_FALSE(controller.isVisible());
    EXPECT_FALSE(controller.shownFrame());
    EXPECT_EQ(controller.window(), nullptr);
}

TEST_F(ShelfControllerTest, TheShelfIsADisplayOnlyGlassWindowBelowTheOverlayOnEverySpace) {
    controller.show(layout, state);
    const SimAgentWindow& window = simWindow();
    EXPECT_EQ(window.level(), 999);
    EXPECT_EQ(window.deferral(), WindowDeferral::immediate);
    EXPECT_TRUE(window.ignoresMouseEvents());
    EXPECT_EQ(window.collectionBehavior(), 0x151u);
    EXPECT_EQ(window.glassRadius(), ShelfController::cornerRadius);
}

TEST_F(ShelfControllerTest, UnfoldedTheShelfCoversTheLayoutsFrameInAppKitCoordinates) {
    controller.show(layout, state);
    EXPECT_EQ(simWindow().frame(), inAppKit(layout.frame));
    EXPECT_TRUE(simWindow().isVisible());
    EXPECT_TRUE(controller.isVisible());
    EXPECT_EQ(controller.shownFrame(), layout.frame);
}

TEST_F(ShelfControllerTest, FoldedTheShelfCoversOnlyThePillWithCapsuleGlass) {
    controller.show(layout, folded());
    EXPECT_EQ(simWindow().frame(), inAppKit(layout.pill));
    EXPECT_EQ(controller.shownFrame(), layout.pill);
    EXPECT_EQ(simWindow().glassRadius(), ShelfLayout::pillSize.height / 2);
}

TEST_F(ShelfControllerTest, UnfoldingGivesTheGlassTheShelfsCornersBack) {
    controller.show(layout, folded());
    controller.show(layout, state);
    EXPECT_EQ(simWindow().glassRadius(), ShelfController::cornerRadius);
    EXPECT_EQ(simWindow().frame(), inAppKit(layout.frame));
    EXPECT_EQ(desktop.windowHost().windowsMade(), 1);
}

TEST_F(ShelfControllerTest, TheViewDrawsTheStateWithTheFramesCornerAsItsOrigin) {
    controller.show(layout, state);
    EXPECT_EQ(controller.view().layout(), layout);
    EXPECT_EQ(controller.view().state(), state);
    const auto& content = simWindow().content();
    ASSERT_TRUE(content);
    EXPECT_TRUE(content->flipped());
    const Rect save = layout.cells[1].screen;
    const Path expected = Path::roundedRect(save.offsetBy(-layout.frame.x, -layout.frame.y),
                                            ShelfStyle::screenRadius);
    const auto fills = content->all<DisplayList::Fill>();
    EXPECT_TRUE(std::any_of(fills.begin(), fills.end(), [&](const auto& f) {
        return f.path == expected && f.color == ShelfCellPainter::screenBase(false, false);
    }));
}

TEST_F(ShelfControllerTest, FoldedTheViewDrawsThePillFromTheWindowsCorner) {
    controller.show(layout, folded());
    const auto texts = simWindow().content()->all<DisplayList::Text>();
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].run.text, "Layouts");
    EXPECT_GT(texts[0].baseline.x, 0);
    EXPECT_LT(texts[0].baseline.x, ShelfLayout::pillSize.width / 2);
}

TEST_F(ShelfControllerTest, ShowingANewStateRedrawsTheSameWindow) {
    controller.show(layout, state);
    const int drawings = simWindow().contentUpdates();
    ShelfState hovered = state;
    hovered.hovered = ShelfLayout::Item::save();
    controller.show(layout, hovered);
    EXPECT_EQ(desktop.windowHost().windowsMade(), 1);
    EXPECT_GT(simWindow().contentUpdates(), drawings);
    EXPECT_EQ(controller.view().state().hovered, ShelfLayout::Item::save());
    EXPECT_EQ(desktop.systemLog().count(recreatedLine), 0u);
}

TEST_F(ShelfControllerTest, AShelfLeftOnAnotherSpaceIsMadeAgainWithALogLine) {
    controller.show(layout, state);
    simWindow().leaveActiveSpace();
    controller.show(layout, folded());

    EXPECT_EQ(desktop.windowHost().windowsMade(), 2);
    EXPECT_EQ(desktop.systemLog().count(recreatedLine), 1u);
    const SimAgentWindow& fresh = simWindow();  // the old window is gone
    EXPECT_TRUE(fresh.isVisible());
    EXPECT_TRUE(fresh.isOnActiveSpace());
    EXPECT_EQ(fresh.level(), 999);
    EXPECT_EQ(fresh.collectionBehavior(), 0x151u);
    EXPECT_TRUE(fresh.ignoresMouseEvents());
    EXPECT_EQ(fresh.glassRadius(), ShelfLayout::pillSize.height / 2);
    EXPECT_EQ(fresh.frame(), inAppKit(layout.pill));
    ASSERT_TRUE(fresh.content());
    EXPECT_EQ(fresh.content()->all<DisplayList::Text>().size(), 1u);
    EXPECT_EQ(controller.window()->frame(), inAppKit(layout.pill));

    controller.show(layout, folded());
    EXPECT_EQ(desktop.windowHost().windowsMade(), 2);
    EXPECT_EQ(desktop.systemLog().count(recreatedLine), 1u);
}

TEST_F(ShelfControllerTest, EveryTimeTheShelfIsLeftBehindItIsMadeAgain) {
    controller.show(layout, state);
    simWindow().leaveActiveSpace();
    controller.show(layout, state);
    simWindow().leaveActiveSpace();
    controller.show(layout, state);
    EXPECT_EQ(desktop.windowHost().windowsMade(), 3);
    EXPECT_EQ(desktop.systemLog().count(recreatedLine), 2u);
}

TEST_F(ShelfControllerTest, HideOrdersTheShelfOutAndKeepsItsWindow) {
    controller.show(layout, state);
    controller.hide();
    EXPECT_FALSE(simWindow().isVisible());
    EXPECT_FALSE(controller.isVisible());
    EXPECT_EQ(controller.shownFrame(), layout.frame);

    controller.show(layout, state);
    EXPECT_TRUE(simWindow().isVisible());
    EXPECT_EQ(desktop.windowHost().windowsMade(), 1);
    EXPECT_EQ(desktop.systemLog().count(recreatedLine), 0u);
}

TEST_F(ShelfControllerTest, HideBeforeAnyShowDoesNothing) {
    controller.hide();
    EXPECT_EQ(desktop.windowHost().windowsMade(), 0);
    EXPECT_FALSE(controller.isVisible());
}

}  // namespace
}  // namespace vistrel
