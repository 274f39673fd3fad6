// The status panel never runs off the bottom of the screen: when its rows are taller than the
// room below the menu bar, the saved layouts scroll and every other row stays in sight.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "base/hotkey.h"
#include "layouts/layout_store.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "status_menu_fixture.h"
#include "ui/kit/dfkit_menu_row.h"
#include "ui/kit/dfkit_scroll_view.h"

namespace vistrel::testing {
namespace {

constexpr double smallMenuBar = 25;
constexpr double dockHeight = 70;
// More than the panel has rows that take a click.
constexpr int maxPresses = 40;

class StatusPanelFitTest : public StatusMenuTest {
  protected:
    void SetUp() override {
        Shared::store()->set(std::string(PreferenceKey::layoutsEnabled), true);
        StatusMenuTest::SetUp();
        controller->reportProblem = [] {};
        controller->updater =
            StatusMenuController::Updater{[] {}, [] { return false; }, [](bool) {}};
    }

    // A 1280×800 display, as on a 13-inch MacBook Air at its default scale.
    void smallDisplay() {
        ScreenDescription& screen = desktop.screens().front();
        screen.frame = {0, 0, 1280, 800};
        screen.visibleFrame = {0, dockHeight, 1280, 800 - smallMenuBar - dockHeight};
    }
    void saveLayouts(int count) {
        for (int i = 1; i <= count; ++i) {
            LayoutStore::add(*Shared::store(),
                             {{},
                              "Layout " + std::to_string(i),
                              {{"com.apple.Notes", "", "", {0, 0, 1, 1}, std::nullopt}},
                              0});
        }
    }
    // The crowded panel: ten layouts, the update row and the Accessibility button.
    void openCrowded() {
        smallDisplay();
        desktop.trusted = false;
        saveLayouts(10);
        open();
    }
    DFKitScrollView* layouts() {
        for (const auto& row : controller->panel()->content().rows()) {
            if (auto* column = dynamic_cast<DFKitScrollView*>(row.get())) return column;
        }
        return nullptr;
    }
    std::vector<Rect> topRowFrames() {
        std::vector<Rect> frames;
        for (const auto& row : controller->panel()->content().rows())
            frames.push_back(row->frame());
        return frames;
    }
    Point inLayouts() { return layouts()->frameInRoot().mid(); }
    // Presses the down arrow until the view labelled so is highlighted; false if it never is.
    bool arrowTo(const std::string& label, std::int64_t key = KeyCode::downArrow) {
        for (int press = 0; press < maxPresses; ++press) {
            if (controller->panel()->highlighted() == viewLabelled(label)) return true;
            panel().pressKey(key);
        }
        return false;
    }
    // Whole inside the layouts' window, and clear of a fade at either edge.
    bool inLayoutsWindow(const std::string& label) {
        const Rect row = viewLabelled(label)->frameInRoot();
        const Rect window = layouts()->frameInRoot();
        const double fade = DFKitScrollView::fadeHeight;
        return row.minY() >= window.minY() + (layouts()->hidesAbove() ? fade : 0) &&
               row.maxY() <= window.maxY() - (layouts()->hidesBelow() ? fade : 0);
    }
    Rect visible() { return desktop.screens().front().visibleFrame; }
};

TEST_F(StatusPanelFitTest, TenLayoutsTheUpdateRowAndTheAccessibilityButtonFitOnA1280By800Display) {
    openCrowded();
    const Rect frame = panel().frame();
    EXPECT_GE(frame.minY(), visible().minY() + DFKitStatusPanel::screenGap - 1e-9);
    EXPECT_DOUBLE_EQ(frame.maxY(), item().buttonFrame()->minY() - DFKitStatusPanel::screenGap);
    ASSERT_NE(layouts(), nullptr);
    EXPECT_LT(layouts()->frame().height, layouts()->contentHeight(DFKitPanelView::rowWidth));
}

TEST_F(StatusPanelFitTest, EveryRowButTheLayoutsStaysWholeInsideThePanel) {
    openCrowded();
    const Rect content = controller->panel()->content().bounds();
    for (const Rect& frame : topRowFrames()) {
        EXPECT_GE(frame.minY(), 0);
        EXPECT_LE(frame.maxY(), content.maxY());
    }
    for (const std::string label :
         {"Open System Settings…", "Save Current Layout", "Check for Updates…", "Quit Vistrel"}) {
        const DFKitView* row = viewLabelled(label);
        ASSERT_NE(row, nullptr) << label;
        EXPECT_LE(row->frameInRoot().maxY(), content.maxY()) << label;
    }
}

TEST_F(StatusPanelFitTest, TheWheelScrollsTheLayoutsAndNothingElseMoves) {
    openCrowded();
    const std::vector<Rect> before = topRowFrames();
    const double firstRow = viewLabelled("Layout 1")->frameInRoot().y;
    panel().scroll(inLayouts(), -30, true);
    EXPECT_DOUBLE_EQ(layouts()->offset(), 30);
    EXPECT_DOUBLE_EQ(viewLabelled("Layout 1")->frameInRoot().y, firstRow - 30);
    EXPECT_EQ(topRowFrames(), before);
}

TEST_F(StatusPanelFitTest, AMouseThatScrollsByLinesMovesALinePerNotch) {
    openCrowded();
    panel().scroll(inLayouts(), -2, false);
    EXPECT_DOUBLE_EQ(layouts()->offset(), 2 * DFKitStatusPanel::scrollLine);
    panel().scroll(inLayouts(), 1, false);
    EXPECT_DOUBLE_EQ(layouts()->offset(), DFKitStatusPanel::scrollLine);
}

TEST_F(StatusPanelFitTest, ScrollingStopsWithTheLastLayoutShownWhole) {
    openCrowded();
    panel().scroll(inLayouts(), -1000, true);
    const Rect window = layouts()->frameInRoot();
    EXPECT_DOUBLE_EQ(viewLabelled("Layout 9")->frameInRoot().maxY(), window.maxY());
    panel().scroll(inLayouts(), 1000, true);
    EXPECT_DOUBLE_EQ(layouts()->offset(), 0);
}

TEST_F(StatusPanelFitTest, ALayoutScrolledIntoSightRestoresOnAClick) {
    openCrowded();
    panel().scroll(inLayouts(), -1000, true);
    clickLabelled("Layout 9");
    EXPECT_EQ(desktop.systemLog().count("layouts: restoring \"Layout 9\" from the menu"), 1u);
}

TEST_F(StatusPanelFitTest, ALayoutScrolledOutOfSightTakesNoClick) {
    openCrowded();
    panel().scroll(inLayouts(), -1000, true);
    clickLabelled("Layout 1");
    EXPECT_EQ(desktop.systemLog().count("layouts: restoring \"Layout 1\" from the menu"), 0u);
}

TEST_F(StatusPanelFitTest, TheKnobShowsHowMuchThereIsAndWhereTheWindowStands) {
    openCrowded();
    const auto top = layouts()->knob();
    ASSERT_TRUE(top);
    panel().scroll(inLayouts(), -1000, true);
    const auto bottom = layouts()->knob();
    ASSERT_TRUE(bottom);
    EXPECT_DOUBLE_EQ(top->minY(), DFKitScrollView::knobInset);
    EXPECT_DOUBLE_EQ(bottom->maxY(), layouts()->bounds().height - DFKitScrollView::knobInset);
    EXPECT_LT(top->height, layouts()->bounds().height);
}

TEST_F(StatusPanelFitTest, APanelWithRoomForEveryRowDoesNotScroll) {
    saveLayouts(3);
    open();
    ASSERT_NE(layouts(), nullptr);
    EXPECT_DOUBLE_EQ(layouts()->frame().height, layouts()->contentHeight(DFKitPanelView::rowWidth));
    panel().scroll(inLayouts(), -30, true);
    EXPECT_DOUBLE_EQ(layouts()->offset(), 0);
    EXPECT_FALSE(layouts()->knob());
}

TEST_F(StatusPanelFitTest, TheLayoutsFadeOnlyAtAnEdgeWithRowsHiddenPastIt) {
    openCrowded();
    EXPECT_FALSE(layouts()->hidesAbove());
    EXPECT_TRUE(layouts()->hidesBelow());
    panel().scroll(inLayouts(), -1000, true);
    EXPECT_TRUE(layouts()->hidesAbove());
    EXPECT_FALSE(layouts()->hidesBelow());
}

TEST_F(StatusPanelFitTest, APanelWithRoomForEveryRowHasNoFade) {
    saveLayouts(3);
    open();
    EXPECT_FALSE(layouts()->hidesAbove());
    EXPECT_FALSE(layouts()->hidesBelow());
}

TEST_F(StatusPanelFitTest, MovingDownWithTheArrowKeysKeepsEachSelectedLayoutInSight) {
    openCrowded();
    const std::vector<Rect> before = topRowFrames();
    for (int i = 1; i <= 9; ++i) {
        const std::string label = "Layout " + std::to_string(i);
        ASSERT_TRUE(arrowTo(label)) << label;
        EXPECT_TRUE(inLayoutsWindow(label)) << label;
    }
    EXPECT_GT(layouts()->offset(), 0);
    EXPECT_EQ(topRowFrames(), before);
}

TEST_F(StatusPanelFitTest, MovingBackUpWithTheArrowKeysBringsTheFirstLayoutBackIntoSight) {
    openCrowded();
    ASSERT_TRUE(arrowTo("Save Current Layout"));
    ASSERT_TRUE(arrowTo("Layout 1", KeyCode::upArrow));
    EXPECT_TRUE(inLayoutsWindow("Layout 1"));
    EXPECT_DOUBLE_EQ(layouts()->offset(), 0);
}

TEST_F(StatusPanelFitTest, ReturnRestoresTheLayoutSelectedWithTheArrowKeys) {
    openCrowded();
    ASSERT_TRUE(arrowTo("Layout 9"));
    EXPECT_TRUE(panel().pressKey(KeyCode::returnKey));
    EXPECT_EQ(desktop.systemLog().count("layouts: restoring \"Layout 9\" from the menu"), 1u);
}

TEST_F(StatusPanelFitTest, TheArrowKeysStartAtTheFirstRowThatTakesAClickAndStopAtTheLast) {
    open();
    EXPECT_TRUE(panel().pressKey(KeyCode::downArrow));
    EXPECT_EQ(controller->panel()->highlighted(), viewLabelled("More options"));
    for (int press = 0; press < maxPresses; ++press)
        panel().pressKey(KeyCode::downArrow);
    EXPECT_EQ(controller->panel()->highlighted(), viewLabelled("Quit Vistrel"));
}

TEST_F(StatusPanelFitTest, KeysThePanelDoesNotUseGoOnToTheWindow) {
    open();
    constexpr std::int64_t letterA = 0;
    EXPECT_FALSE(panel().pressKey(KeyCode::returnKey)) << "nothing is highlighted";
    EXPECT_FALSE(panel().pressKey(KeyCode::downArrow, ModifierFlag::command));
    EXPECT_FALSE(panel().pressKey(letterA));
    EXPECT_EQ(controller->panel()->highlighted(), nullptr);
}

}  // namespace
}  // namespace vistrel::testing
