#include "views/hud_view.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/display_list.h"
#include "platform/sim/sim_window_host.h"
#include "support/sim_test.h"
#include "views/layouts_ui.h"

namespace vistrel {
namespace {

constexpr Size capsule{200, 34};
const std::string message = "Saved \u201CWork\u201D";

class HUDViewTest : public testing::SimTest {
  protected:
    TextMetrics metricsOf(const std::string& text) {
        return desktop.platform().text.measure({text, HUDView::font(), Color::white()});
    }

    std::shared_ptr<const DisplayList> drawn(std::optional<UnitRect> unit) {
        HUDView view;
        view.configure(message, unit);
        RecordingCanvas canvas(true);
        view.draw(canvas, capsule);
        return canvas.finish();
    }

    DisplayList::Text text(std::optional<UnitRect> unit) {
        const auto texts = drawn(unit)->all<DisplayList::Text>();
        EXPECT_EQ(texts.size(), 1u);
        return texts.empty() ? DisplayList::Text{} : texts[0];
    }
};

TEST_F(HUDViewTest, MeasureLeavesFifteenPointsEachSideOfTheText) {
    const double textWidth = metricsOf(message).width;
    EXPECT_EQ(HUDView::measure(message, false), (Size{std::ceil(textWidth + 30), 34}));
}

TEST_F(HUDViewTest, MeasureWithMiniatureLeavesFiftyPointsBeforeTheText) {
    const double textWidth = metricsOf(message).width;
    EXPECT_EQ(HUDView::measure(message, true), (Size{std::ceil(textWidth + 65), 34}));
}

TEST_F(HUDViewTest, LongerMessageNeedsAWiderCapsule) {
    EXPECT_GT(HUDView::measure(message + " and more", false).width,
              HUDView::measure(message, false).width);
}

TEST_F(HUDViewTest, MessageIsSetInTheSystemFontAtAReadableSize) {
    const Font font = HUDView::font();
    EXPECT_TRUE(font.name.empty());
    EXPECT_GE(font.size, 13);
    EXPECT_LE(font.size, 14);
}

TEST_F(HUDViewTest, CapsuleIsDarkGreyWithAFaintWhiteBorderHalfAPointInside) {
    const auto list = drawn(std::nullopt);
    const Path expected = Path::roundedRect({0.5, 0.5, 199, 33}, 16.5);
    const auto fills = list->all<DisplayList::Fill>();
    ASSERT_EQ(fills.size(), 1u);
    EXPECT_EQ(fills[0].path, expected);
    EXPECT_EQ(fills[0].color, (Color{0.08, 0.08, 0.08, 0.9}));
    const auto strokes = list->all<DisplayList::Stroke>();
    ASSERT_EQ(strokes.size(), 1u);
    EXPECT_EQ(strokes[0].path, expected);
    EXPECT_EQ(strokes[0].color, Color::white().withAlpha(0.16));
    EXPECT_EQ(strokes[0].style.width, 1);
}

TEST_F(HUDViewTest, HandsItsWindowAFlippedDrawing) {
    SimWindowHost host;
    auto window = host.makeWindow(WindowDeferral::deferred);
    window->setFrame({100, 100, capsule.width, capsule.height}, false);
    HUDView view;
    view.configure(message, std::nullopt);
    view.attach(window.get());
    ASSERT_TRUE(host.windows().front()->content());
    EXPECT_TRUE(host.windows().front()->content()->flipped());
}

TEST_F(HUDViewTest, TextStartsFifteenPointsInWithoutMiniature) {
    const auto drawnText = text(std::nullopt);
    EXPECT_EQ(drawnText.baseline.x, 15);
    EXPECT_EQ(drawnText.run.text, message);
    EXPECT_EQ(drawnText.run.color, Color::white());
    EXPECT_EQ(drawnText.run.font, HUDView::font());
}

TEST_F(HUDViewTest, TextStartsFiftyPointsInAfterTheMiniature) {
    EXPECT_EQ(text(UnitRect{0, 0, 0.5, 1}).baseline.x, 50);
}

TEST_F(HUDViewTest, TextIsCentredVertically) {
    const TextMetrics metrics = metricsOf(message);
    const double top = text(std::nullopt).baseline.y - metrics.ascent;
    EXPECT_NEAR(top + metrics.height() / 2, capsule.height / 2, 1e-9);
}

TEST_F(HUDViewTest, WithoutUnitNoMiniatureIsDrawn) {
    EXPECT_EQ(drawn(std::nullopt)->all<DisplayList::Fill>().size(), 1u);
}

TEST_F(HUDViewTest, MiniatureIsATwentySixBySeventeenScreenAtFifteenCentredVertically) {
    const auto fills = drawn(UnitRect{0, 0, 1, 1})->all<DisplayList::Fill>();
    ASSERT_EQ(fills.size(), 3u);
    EXPECT_EQ(fills[1].path.controlBounds(), (Rect{15, 8.5, 26, 17}));
    EXPECT_EQ(fills[1].color, Color::white().withAlpha(0.2));
}

TEST_F(HUDViewTest, UnitRectIsDrawnInsideTheMiniatureInsetByTwo) {
    // The right half of the 22 x 13 area inside the miniature.
    const auto list = drawn(UnitRect{0.5, 0, 0.5, 1});
    const auto fills = list->all<DisplayList::Fill>();
    ASSERT_EQ(fills.size(), 3u);
    EXPECT_EQ(fills[2].path.controlBounds(), (Rect{28, 10.5, 11, 13}));
    EXPECT_EQ(fills[2].color, LayoutsUI::accent);
    const auto clips = list->all<DisplayList::Clip>();
    ASSERT_EQ(clips.size(), 1u);
    EXPECT_EQ(clips[0].path, Path::rect({17, 10.5, 22, 13})) << "kept inside the miniature";
}

TEST_F(HUDViewTest, ConfiguringRedrawsTheAttachedWindowAtItsSize) {
    auto window = desktop.windowHost().makeWindow(WindowDeferral::immediate);
    window->setFrame({0, 0, 120, 34}, false);
    HUDView view;
    view.attach(window.get());
    const SimAgentWindow& simWindow = *desktop.windowHost().windows().back();
    const int before = simWindow.contentUpdates();
    view.configure("Deleted", std::nullopt);
    EXPECT_EQ(simWindow.contentUpdates(), before + 1);
    const auto fills = simWindow.content()->all<DisplayList::Fill>();
    ASSERT_FALSE(fills.empty());
    EXPECT_EQ(fills[0].path.controlBounds(), (Rect{0.5, 0.5, 119, 33}));
    EXPECT_EQ(simWindow.content()->all<DisplayList::Text>().at(0).run.text, "Deleted");
}

TEST_F(HUDViewTest, WindowNotPlacedYetGetsNoDrawing) {
    auto window = desktop.windowHost().makeWindow(WindowDeferral::immediate);
    HUDView view;
    view.attach(window.get());
    view.configure("Saved", std::nullopt);
    EXPECT_EQ(desktop.windowHost().windows().back()->contentUpdates(), 0);
}

}  // namespace
}  // namespace vistrel
