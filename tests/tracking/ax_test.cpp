#include "tracking/ax.h"

#include <gtest/gtest.h>

#include "platform/platform.h"
#include "settings/preference_key.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

constexpr Rect windowFrame{100, 100, 400, 300};
// Inside the window, below its title bar, and on its title text.
constexpr Point body{300, 250};
constexpr Point titleText{300, 110};
constexpr Point desktopPoint{1000, 700};

class AXTest : public testing::SimTest {
  protected:
    AXTest() {
        pid = desktop.addApplication({0, "com.apple.TextEdit", "TextEdit"});
        SimWindow window;
        window.title = "Untitled";
        window.frame = windowFrame;
        id = desktop.addWindow(pid, window);
    }

    SimWindow& window() { return *desktop.window(id); }
    AXElement element() { return desktop.accessibility().windowElement(id); }

    Pid pid = 0;
    SimWindowId id = 0;
};

TEST_F(AXTest, PointOverTitleTextReturnsTheWindowThroughItsWindowAttribute) {
    desktop.accessibility().resetCounts();
    const auto hit = AX::hitWindow(titleText);
    ASSERT_TRUE(hit.has_value());
    EXPECT_EQ(hit->window, element());
    EXPECT_EQ(hit->pid, pid);
    EXPECT_EQ(desktop.accessibility().attributeReads("AXRole"), 1u);
    EXPECT_EQ(desktop.accessibility().attributeReads("AXWindow"), 1u);
}

TEST_F(AXTest, PointOverTheWindowItselfCostsOneAttributeRead) {
    desktop.accessibility().resetCounts();
    const auto hit = AX::hitWindow(body);
    ASSERT_TRUE(hit.has_value());
    EXPECT_EQ(hit->window, element());
    EXPECT_EQ(desktop.accessibility().attributeReads(), 1u);
}

TEST_F(AXTest, PointOverTheDesktopReturnsNothing) {
    EXPECT_FALSE(AX::hitWindow(desktopPoint));
}

TEST_F(AXTest, PointOverAnElementWithoutAWindowReturnsNothing) {
    desktop.dock().open();
    // Mission Control's background belongs to the Dock and has no window.
    const auto thumbnail = desktop.dock().thumbnails().front().frame;
    EXPECT_TRUE(AX::hitWindow({thumbnail.minX() - 10, thumbnail.minY() - 10}) == std::nullopt);
}

TEST_F(AXTest, WithoutTheAccessibilityGrantNothingIsFound) {
    desktop.trusted = false;
    EXPECT_FALSE(AX::hitWindow(body));
    EXPECT_FALSE(AX::string(element(), "AXTitle"));
}

TEST_F(AXTest, HitTestsStartFromTheSystemWideElementWithItsShortTimeout) {
    EXPECT_FLOAT_EQ(desktop.accessibility().messagingTimeout(AX::systemWide()), 0.2f);
}

TEST_F(AXTest, HungApplicationGivesNothingWithinTheSystemWideTimeout) {
    desktop.application(pid)->hung = true;
    const double start = desktop.clock().now();
    EXPECT_FALSE(AX::hitWindow(titleText));
    EXPECT_NEAR(desktop.clock().now() - start, AX::systemWideTimeout, 1e-6);
}

TEST_F(AXTest, HungApplicationUnderAThumbnailGivesNothingWithinTheSystemWideTimeout) {
    desktop.dock().open();
    desktop.application(pid)->hung = true;
    const Point over = desktop.dock().thumbnails().front().frame.mid();
    const double start = desktop.clock().now();
    EXPECT_FALSE(AX::hitWindow(over));
    EXPECT_NEAR(desktop.clock().now() - start, AX::systemWideTimeout, 1e-6);
}

TEST_F(AXTest, HungHitTestOnTheHoverQueueNeverBlocksTheMainQueue) {
    desktop.application(pid)->hung = true;
    auto hover = platform().executor.makeQueue("hover", QualityOfService::userInteractive);
    bool mainRan = false;
    bool answered = false;
    std::optional<AX::WindowHit> result = AX::WindowHit{};
    const double start = desktop.clock().now();
    hover->async([&] {
        auto hit = AX::hitWindow(body);
        platform().executor.main().async([&, hit] {
            result = hit;
            answered = true;
        });
    });
    platform().executor.main().async([&] { mainRan = true; });

    desktop.executor().mainQueue().drain();
    EXPECT_TRUE(mainRan);
    EXPECT_FALSE(answered);
    EXPECT_EQ(desktop.clock().now(), start);

    desktop.executor().runUntilIdle();
    EXPECT_TRUE(answered);
    EXPECT_FALSE(result.has_value());
    EXPECT_NEAR(desktop.clock().now() - start, AX::systemWideTimeout, 1e-6);
}

TEST_F(AXTest, FrameOfAPointTypedValueIsNothing) {
    SimAccessibility& ax = desktop.accessibility();
    const AXElement asPoint = ax.nodeElement(ax.addNode(pid, {{"AXFrame", Point{1, 2}}}));
    const AXElement asRect = ax.nodeElement(ax.addNode(pid, {{"AXFrame", Rect{1, 2, 3, 4}}}));
    const AXElement without = ax.nodeElement(ax.addNode(pid, {}));
    EXPECT_FALSE(AX::frame(asPoint));
    EXPECT_EQ(AX::frame(asRect), (Rect{1, 2, 3, 4}));
    EXPECT_FALSE(AX::frame(without));
}

TEST_F(AXTest, ReadersAnswerNothingForValuesOfAnotherType) {
    SimAccessibility& ax = desktop.accessibility();
    const AXElement node = ax.nodeElement(ax.addNode(
        pid,
        {{"AXTitle", std::int64_t{3}}, {"AXWindow", std::string("no")}, {"AXChildren", true}}));
    EXPECT_FALSE(AX::string(node, "AXTitle"));
    EXPECT_FALSE(AX::element(node, "AXWindow"));
    EXPECT_TRUE(AX::elements(node, "AXChildren").empty());
    EXPECT_EQ(AX::string(element(), "AXTitle"), "Untitled");
    EXPECT_EQ(AX::element(element(), "AXCloseButton"),
              ax.partElement(id, SimWindowPart::closeButton));
}

TEST_F(AXTest, StandardWindowSupportsEveryButton) {
    const std::set<OverlayButton> all(allOverlayButtons.begin(), allOverlayButtons.end());
    EXPECT_EQ(AX::availableButtons(element(), MaximizeMode::fullScreen), all);
    EXPECT_EQ(AX::availableButtons(element(), MaximizeMode::fill), all);
}

TEST_F(AXTest, FillModeWithoutSettableSizeGetsNoMaximizeEvenWithAFullScreenButton) {
    window().sizeSettable = false;
    const auto buttons = AX::availableButtons(element(), MaximizeMode::fill);
    EXPECT_FALSE(buttons.contains(OverlayButton::maximize));
    EXPECT_TRUE(buttons.contains(OverlayButton::close));
}

TEST_F(AXTest, OtherModesMaximizeThroughASettableFullScreenAttribute) {
    window().hasFullScreenButton = false;
    EXPECT_TRUE(AX::availableButtons(element(), "anything").contains(OverlayButton::maximize));
    window().fullScreenSettable = false;
    EXPECT_FALSE(AX::availableButtons(element(), "anything").contains(OverlayButton::maximize));
}

TEST_F(AXTest, WindowWithoutButtonsStillMinimizesThroughItsAttribute) {
    window().hasCloseButton = false;
    window().hasMinimizeButton = false;
    window().hasFullScreenButton = false;
    EXPECT_EQ(AX::availableButtons(element(), MaximizeMode::fullScreen),
              (std::set{OverlayButton::minimize, OverlayButton::maximize}));
}

TEST_F(AXTest, DialogLikeWindowGetsNoButtons) {
    window().hasCloseButton = false;
    window().hasMinimizeButton = false;
    window().hasFullScreenButton = false;
    window().minimizedSettable = false;
    window().fullScreenSettable = false;
    window().sizeSettable = false;
    EXPECT_TRUE(AX::availableButtons(element(), MaximizeMode::fullScreen).empty());
    EXPECT_TRUE(AX::availableButtons(element(), MaximizeMode::fill).empty());
}

TEST_F(AXTest, ClosedWindowGetsNoButtons) {
    desktop.closeWindow(id);
    EXPECT_TRUE(AX::availableButtons(element(), MaximizeMode::fullScreen).empty());
}

}  // namespace
}  // namespace vistrel
