#include "views/overlay_view.h"

#include <gtest/gtest.h>

#include "platform/display_list.h"
#include "platform/sim/sim_window_host.h"

namespace vistrel {
namespace {

using Verb = Path::Verb;

std::shared_ptr<const DisplayList> recordButton(Rect rect, const Theme::Look& look,
                                                OverlayButton kind, bool hovered) {
    RecordingCanvas canvas;
    OverlayView::drawButton(canvas, rect, look, kind, hovered);
    return canvas.finish();
}

const Theme::Look classicClose = Theme(Theme::classic).look(OverlayButton::close);

// The glyph is the one stroke drawn with round caps.
DisplayList::Stroke glyphStroke(const DisplayList& list) {
    for (const auto& stroke : list.all<DisplayList::Stroke>()) {
        if (stroke.style.cap == LineCap::round) return stroke;
    }
    ADD_FAILURE() << "no glyph stroke";
    return {};
}

// The points a path goes through, with the verb that reaches each one.
std::vector<std::pair<Verb, Point>> steps(const Path& path) {
    std::vector<std::pair<Verb, Point>> result;
    for (const auto& element : path.elements())
        result.emplace_back(element.verb, element.points[0]);
    return result;
}

void expectSteps(const Path& path, const std::vector<std::pair<Verb, Point>>& expected) {
    const auto actual = steps(path);
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i) {
        EXPECT_EQ(actual[i].first, expected[i].first) << "step " << i;
        EXPECT_NEAR(actual[i].second.x, expected[i].second.x, 1e-9) << "step " << i;
        EXPECT_NEAR(actual[i].second.y, expected[i].second.y, 1e-9) << "step " << i;
    }
}

TEST(OverlayViewButton, FaceIsTheInscribedOvalFilledWithTheLooksFill) {
    const Rect rect{10, 20, 30, 30};
    const auto list = recordButton(rect, classicClose, OverlayButton::close, false);
    const auto fills = list->all<DisplayList::Fill>();
    ASSERT_EQ(fills.size(), 1u);
    EXPECT_EQ(fills[0].path, Path::oval(rect));
    EXPECT_EQ(fills[0].color, classicClose.fill);
}

TEST(OverlayViewButton, HoveredFaceIsTheFillBlendedTowardsBlackByTwentyTwoPercent) {
    const auto list = recordButton({0, 0, 25, 25}, classicClose, OverlayButton::close, true);
    const auto fills = list->all<DisplayList::Fill>();
    ASSERT_EQ(fills.size(), 1u);
    EXPECT_EQ(fills[0].color, classicClose.fill.blended(0.22, Color::black()));
    EXPECT_NE(fills[0].color, classicClose.fill);
}

TEST(OverlayViewButton, RingIsStrokedInsideTheRectByHalfItsWidth) {
    const Theme::Look look = Theme(Theme::outline).look(OverlayButton::minimize);
    const Rect rect{0, 0, 32, 32};
    const auto list = recordButton(rect, look, OverlayButton::minimize, false);
    const auto strokes = list->all<DisplayList::Stroke>();
    ASSERT_EQ(strokes.size(), 2u);
    EXPECT_EQ(strokes[0].path, Path::oval(rect.insetBy(0.75, 0.75)));
    EXPECT_EQ(strokes[0].color, look.ring);
    EXPECT_DOUBLE_EQ(strokes[0].style.width, 1.5);
}

TEST(OverlayViewButton, GlyphIsStrokedInTheGlyphColourWithRoundCapsAndJoins) {
    const auto list = recordButton({0, 0, 25, 25}, classicClose, OverlayButton::maximize, false);
    const auto glyph = glyphStroke(*list);
    EXPECT_EQ(glyph.color, Color::white());
    EXPECT_EQ(glyph.style.cap, LineCap::round);
    EXPECT_EQ(glyph.style.join, LineJoin::round);
}

TEST(OverlayViewButton, GlyphLineStaysOnePointThreeBelowANineteenAndAHalfPointButton) {
    for (double width : {8.0, 12.0, 16.0, 19.0, 19.49}) {
        const auto list =
            recordButton({0, 0, width, width}, classicClose, OverlayButton::close, false);
        EXPECT_DOUBLE_EQ(glyphStroke(*list).style.width, 1.3) << "width " << width;
    }
}

TEST(OverlayViewButton, GlyphLineIsAFifteenthOfTheWidthFromNineteenAndAHalfPointsUp) {
    for (double width : {19.5, 20.0, 25.0, 32.0, 45.0}) {
        const auto list =
            recordButton({0, 0, width, width}, classicClose, OverlayButton::minimize, false);
        EXPECT_NEAR(glyphStroke(*list).style.width, std::max(width / 15, 1.3), 1e-12);
    }
    const auto large = recordButton({0, 0, 30, 30}, classicClose, OverlayButton::close, false);
    EXPECT_DOUBLE_EQ(glyphStroke(*large).style.width, 2.0);
}

TEST(OverlayViewButton, CloseIsAnXOfTwoDiagonalsAFifthOfTheWidthFromTheCentre) {
    const auto list = recordButton({0, 0, 30, 30}, classicClose, OverlayButton::close, false);
    expectSteps(glyphStroke(*list).path, {{Verb::move, {9, 9}},
                                          {Verb::line, {21, 21}},
                                          {Verb::move, {9, 21}},
                                          {Verb::line, {21, 9}}});
}

TEST(OverlayViewButton, MinimizeIsAHorizontalBarThroughTheCentre) {
    const auto list = recordButton({0, 0, 30, 30}, classicClose, OverlayButton::minimize, false);
    expectSteps(glyphStroke(*list).path, {{Verb::move, {8.1, 15}}, {Verb::line, {21.9, 15}}});
}

TEST(OverlayViewButton, MaximizeIsTwoOutwardArrowsOnTheRisingDiagonal) {
    const auto list = recordButton({0, 0, 30, 30}, classicClose, OverlayButton::maximize, false);
    expectSteps(glyphStroke(*list).path, {{Verb::move, {8.4, 8.4}},
                                          {Verb::line, {21.6, 21.6}},
                                          {Verb::move, {16.2, 21.6}},
                                          {Verb::line, {21.6, 21.6}},
                                          {Verb::line, {21.6, 16.2}},
                                          {Verb::move, {13.8, 8.4}},
                                          {Verb::line, {8.4, 8.4}},
                                          {Verb::line, {8.4, 13.8}}});
}

TEST(OverlayViewButton, GlyphsScaleWithTheButton) {
    for (OverlayButton kind : allOverlayButtons) {
        const auto small = recordButton({0, 0, 20, 20}, classicClose, kind, false);
        const auto large = recordButton({0, 0, 40, 40}, classicClose, kind, false);
        const Rect a = glyphStroke(*small).path.controlBounds();
        const Rect b = glyphStroke(*large).path.controlBounds();
        EXPECT_NEAR(b.width, 2 * a.width, 1e-9);
        EXPECT_NEAR(b.height, 2 * a.height, 1e-9);
        EXPECT_NEAR(b.midX(), 2 * a.midX(), 1e-9);
    }
}

TEST(OverlayViewButton, GlyphIsCentredOnTheButton) {
    const Rect rect{100, 40, 25, 25};
    for (OverlayButton kind : allOverlayButtons) {
        const auto list = recordButton(rect, classicClose, kind, false);
        const Rect bounds = glyphStroke(*list).path.controlBounds();
        EXPECT_NEAR(bounds.midX(), rect.midX(), 1e-9);
        EXPECT_NEAR(bounds.midY(), rect.midY(), 1e-9);
    }
}

std::vector<OverlayView::Item> strip(Theme theme) {
    std::vector<OverlayView::Item> items;
    double x = 0;
    for (OverlayButton button : allOverlayButtons) {
        items.push_back({button, {x, 0, 20, 20}, theme.look(button)});
        x += 24;
    }
    return items;
}

TEST(OverlayView, DrawsEveryItemInOrderWithOnlyTheHoveredOneDarkened) {
    OverlayView view;
    view.configure(strip(Theme::classic));
    view.setHovered(OverlayButton::minimize);
    RecordingCanvas canvas;
    view.draw(canvas);
    const auto fills = canvas.finish()->all<DisplayList::Fill>();
    ASSERT_EQ(fills.size(), 3u);
    const Theme classic = Theme::classic;
    EXPECT_EQ(fills[0].color, classic.look(OverlayButton::close).fill);
    EXPECT_EQ(fills[1].color,
              classic.look(OverlayButton::minimize).fill.blended(0.22, Color::black()));
    EXPECT_EQ(fills[2].color, classic.look(OverlayButton::maximize).fill);
    EXPECT_EQ(fills[2].path, Path::oval({48, 0, 20, 20}));
}

TEST(OverlayView, HandsItsWindowAnUnflippedDrawingSoTheArrowsRiseToTheUpperRight) {
    SimWindowHost host;
    auto window = host.makeWindow(WindowDeferral::deferred);
    OverlayView view;
    view.attach(window.get());
    view.configure(strip(Theme::classic));
    ASSERT_TRUE(host.windows().front()->content());
    EXPECT_FALSE(host.windows().front()->content()->flipped());
}

TEST(OverlayView, ConfigureHandsTheAttachedWindowAFreshDrawing) {
    SimWindowHost host;
    auto window = host.makeWindow(WindowDeferral::deferred);
    OverlayView view;
    view.attach(window.get());
    const SimAgentWindow& sim = *host.windows().front();
    const int before = sim.contentUpdates();
    view.configure(strip(Theme::mono));
    EXPECT_EQ(sim.contentUpdates(), before + 1);
    EXPECT_EQ(sim.content()->all<DisplayList::Fill>().size(), 3u);
}

TEST(OverlayView, AHoverChangeRedrawsTheAttachedWindow) {
    SimWindowHost host;
    auto window = host.makeWindow(WindowDeferral::deferred);
    OverlayView view;
    view.attach(window.get());
    view.configure(strip(Theme::classic));
    const SimAgentWindow& sim = *host.windows().front();
    const int before = sim.contentUpdates();
    view.setHovered(OverlayButton::close);
    EXPECT_EQ(sim.contentUpdates(), before + 1);
    EXPECT_EQ(sim.content()->all<DisplayList::Fill>()[0].color,
              Theme(Theme::classic).look(OverlayButton::close).fill.blended(0.22, Color::black()));
}

TEST(OverlayView, ADetachedViewLeavesItsOldWindowAlone) {
    SimWindowHost host;
    auto window = host.makeWindow(WindowDeferral::deferred);
    OverlayView view;
    view.attach(window.get());
    view.attach(nullptr);
    const int before = host.windows().front()->contentUpdates();
    view.configure(strip(Theme::classic));
    EXPECT_EQ(host.windows().front()->contentUpdates(), before);
}

}  // namespace
}  // namespace vistrel
