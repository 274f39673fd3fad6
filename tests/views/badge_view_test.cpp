#include "views/badge_view.h"

#include <gtest/gtest.h>

#include "platform/display_list.h"
#include "support/sim_test.h"
#include "views/layouts_ui.h"

namespace vistrel {
namespace {

constexpr Size badge{34, 34};

class BadgeViewTest : public testing::SimTest {
  protected:
    std::shared_ptr<const DisplayList> drawn(int number) {
        BadgeView view;
        view.configure(number);
        RecordingCanvas canvas(true);
        view.draw(canvas, badge);
        return canvas.finish();
    }

    DisplayList::Text text(int number) {
        const auto texts = drawn(number)->all<DisplayList::Text>();
        EXPECT_EQ(texts.size(), 1u);
        return texts.empty() ? DisplayList::Text{} : texts[0];
    }

    // The middle of the text's measured box.
    Point textCentre(int number) {
        const auto drawnText = text(number);
        const TextMetrics metrics = desktop.platform().text.measure(drawnText.run);
        return {drawnText.baseline.x + metrics.width / 2,
                drawnText.baseline.y - metrics.ascent + metrics.height() / 2};
    }
};

TEST_F(BadgeViewTest, DiscIsAnAccentOvalInsetByTwoWithAWhiteRingTwoPointsWide) {
    const auto list = drawn(1);
    const Path disc = Path::oval({2, 2, 30, 30});
    const auto fills = list->all<DisplayList::Fill>();
    ASSERT_EQ(fills.size(), 1u);
    EXPECT_EQ(fills[0].path, disc);
    EXPECT_EQ(fills[0].color, LayoutsUI::accent);
    const auto strokes = list->all<DisplayList::Stroke>();
    ASSERT_EQ(strokes.size(), 1u);
    EXPECT_EQ(strokes[0].path, disc);
    EXPECT_EQ(strokes[0].color, Color::white());
    EXPECT_EQ(strokes[0].style.width, 2);
}

TEST_F(BadgeViewTest, NumberIsInTheBoldSystemFontOfSizeFifteenInWhite) {
    const auto drawnText = text(3);
    EXPECT_EQ(drawnText.run.text, "3");
    EXPECT_EQ(drawnText.run.font, Font::system(15, FontWeight::bold));
    EXPECT_EQ(drawnText.run.color, Color::white());
}

TEST_F(BadgeViewTest, OneDigitIsCentredInTheDisc) {
    const Point centre = textCentre(4);
    EXPECT_NEAR(centre.x, 17, 1e-9);
    EXPECT_NEAR(centre.y, 17, 1e-9);
}

TEST_F(BadgeViewTest, NumberTenAndAboveIsStillCentredInTheDisc) {
    for (int number : {10, 12, 99}) {
        const Point centre = textCentre(number);
        EXPECT_NEAR(centre.x, 17, 1e-9) << number;
        EXPECT_NEAR(centre.y, 17, 1e-9) << number;
    }
    EXPECT_LT(text(12).baseline.x, text(2).baseline.x) << "two digits start further left";
}

TEST_F(BadgeViewTest, ConfiguringRedrawsTheAttachedWindow) {
    auto window = desktop.windowHost().makeWindow(WindowDeferral::immediate);
    window->setFrame({0, 0, 34, 34}, false);
    BadgeView view;
    view.attach(window.get());
    view.configure(5);
    const SimAgentWindow& simWindow = *desktop.windowHost().windows().back();
    ASSERT_NE(simWindow.content(), nullptr);
    EXPECT_TRUE(simWindow.content()->flipped());
    EXPECT_EQ(simWindow.content()->all<DisplayList::Text>().at(0).run.text, "5");
    EXPECT_EQ(simWindow.content()->all<DisplayList::Fill>().at(0).path, Path::oval({2, 2, 30, 30}));
}

}  // namespace
}  // namespace vistrel
