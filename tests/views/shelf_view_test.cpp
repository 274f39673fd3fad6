#include <gtest/gtest.h>

#include "shelf_view_fixture.h"
#include "views/shelf_cell_painter.h"
#include "views/shelf_glyphs.h"
#include "views/shelf_text.h"

namespace vistrel::testing {
namespace {

using Item = ShelfLayout::Item;

TEST_F(ShelfViewTest, EachSavedWindowIsDrawnOnceInItsApplicationsTranslucentColour) {
    const auto list = draw(stateWith({sideBySide()}));
    const Rect screen = local(Item::saved(0)).screen;
    for (const std::string& app : {safari, notes}) {
        const auto fills = fillsIn(*list, windowFill(app));
        ASSERT_EQ(fills.size(), 1u) << app;
        EXPECT_TRUE(holds(screen, boundsOf(fills[0].path))) << app;
        EXPECT_LT(fills[0].color.alpha, 1.0);
    }
    EXPECT_NE(AppLook::color(safari), AppLook::color(notes));
}

TEST_F(ShelfViewTest, SavedWindowsTakeTheirShareOfTheMiniature) {
    const auto list = draw(stateWith({sideBySide()}));
    const Rect screen = local(Item::saved(0)).screen;
    const Rect left = boundsOf(fillsIn(*list, windowFill(safari))[0].path);
    const Rect right = boundsOf(fillsIn(*list, windowFill(notes))[0].path);
    EXPECT_LT(left.maxX(), screen.midX());
    EXPECT_GT(right.minX(), screen.midX());
    EXPECT_NEAR(left.width, right.width, 1e-9);
    EXPECT_GT(left.width, screen.width / 2 - 2 * ShelfStyle::screenInset);
    EXPECT_GT(left.height, screen.height - 3 * ShelfStyle::screenInset);
}

TEST_F(ShelfViewTest, AWindowHangingOverTheScreensEdgeIsClippedToTheMiniature) {
    const auto list = draw(stateWith({layoutOf("Over", {window(safari, {-0.5, 0, 1, 1})})}));
    const Rect screen = local(Item::saved(0)).screen;
    const Rect drawn = boundsOf(fillsIn(*list, windowFill(safari))[0].path);
    EXPECT_GE(drawn.minX(), screen.minX() + ShelfStyle::screenInset);
    EXPECT_LT(drawn.maxX(), screen.midX());
}

TEST_F(ShelfViewTest, AWindowOffTheScreenIsNotDrawn) {
    const auto list = draw(stateWith({layoutOf("Away", {window(safari, {1.2, 0, 0.5, 0.5})})}));
    EXPECT_TRUE(fillsIn(*list, windowFill(safari)).empty());
}

TEST_F(ShelfViewTest, TheFrontMostWindowIsDrawnLastSoItLiesOnTop) {
    // Saved windows are kept front-most first.
    const auto list = draw(stateWith({layoutOf(
        "Stack", {window(safari, {0.1, 0.1, 0.6, 0.6}), window(notes, {0.3, 0.3, 0.6, 0.6})})}));
    EXPECT_GT(orderOf(*list, windowFill(safari)), orderOf(*list, windowFill(notes)));
}

TEST_F(ShelfViewTest, TheApplicationsIconIsCentredOnAWindowWithRoomForIt) {
    const auto list = draw(stateWith({sideBySide()}));
    const auto images = list->all<DisplayList::DrawImage>();
    ASSERT_EQ(images.size(), 2u);
    const Rect left = boundsOf(fillsIn(*list, windowFill(safari))[0].path);
    const Rect icon = images[1].rect;  // the front window, Safari, is drawn last
    EXPECT_EQ(images[1].image, AppLook::icon(safari));
    EXPECT_NEAR(icon.midX(), left.midX(), 1e-9);
    EXPECT_NEAR(icon.midY(), left.midY(), 1e-9);
    EXPECT_LE(icon.width, ShelfStyle::iconLargest);
}

TEST_F(ShelfViewTest, ATinyWindowShowsItsColourWithoutAnIcon) {
    const auto list = draw(stateWith({layoutOf("Tiny", {window(safari, {0.4, 0.4, 0.1, 0.1})})}));
    EXPECT_EQ(fillsIn(*list, windowFill(safari)).size(), 1u);
    EXPECT_TRUE(list->all<DisplayList::DrawImage>().empty());
}

TEST_F(ShelfViewTest, SavedCellsShowTheirCommandDigitShortcutsUnderneath) {
    const auto list = draw(stateWith({sideBySide(), sideBySide(), sideBySide()}));
    const auto strokes = list->all<DisplayList::Stroke>();
    for (int i = 0; i < 3; ++i) {
        const auto digits = textsOf(*list, std::to_string(i + 1));
        ASSERT_EQ(digits.size(), 1u) << i;
        const ShelfLayout::Cell cell = local(Item::saved(i));
        const Point baseline = digits[0].baseline;
        EXPECT_GT(baseline.y, cell.screen.maxY());
        EXPECT_LE(baseline.y, cell.rect.maxY());
        EXPECT_EQ(digits[0].run.color, ShelfStyle::labelIdle);
        // The Command symbol stands just before the digit, the pair centred on the cell.
        const auto command = std::find_if(strokes.begin(), strokes.end(), [&](const auto& s) {
            const Rect b = boundsOf(s.path);
            return b.maxX() <= baseline.x && b.minX() > baseline.x - ShelfStyle::labelSize &&
                   b.minY() > cell.screen.maxY() && b.maxY() < baseline.y + 1;
        });
        ASSERT_NE(command, strokes.end()) << i;
        const double right = baseline.x + ShelfText::width(digits[0].run);
        EXPECT_NEAR((boundsOf(command->path).minX() + right) / 2, cell.rect.midX(), 1.0);
    }
}

TEST_F(ShelfViewTest, TheHoveredCellHasALighterBaseAndItsNameUnderIt) {
    ShelfState state = stateWith({sideBySide(), layoutOf("Mail", {window(safari, {0, 0, 1, 1})})});
    state.hovered = Item::saved(1);
    const auto list = draw(state);
    const ShelfLayout::Cell cell = local(Item::saved(1));
    const auto lighter = fillsIn(*list, ShelfCellPainter::screenBase(true, false));
    ASSERT_EQ(lighter.size(), 1u);
    EXPECT_EQ(lighter[0].path, Path::roundedRect(cell.screen, ShelfStyle::screenRadius));
    EXPECT_EQ(fillsIn(*list, ShelfCellPainter::screenBase(false, false)).size(),
              layout.cells.size() - 1);

    const auto name = textsOf(*list, "Mail");
    ASSERT_EQ(name.size(), 1u);
    EXPECT_EQ(name[0].run.color, ShelfStyle::labelHovered);
    EXPECT_GT(name[0].baseline.y, cell.screen.maxY());
    EXPECT_NEAR(name[0].baseline.x + ShelfText::width(name[0].run) / 2, cell.rect.midX(), 1e-9);
    // The name takes the shortcut's place.
    EXPECT_TRUE(textsOf(*list, "2").empty());
    EXPECT_EQ(textsOf(*list, "1").size(), 1u);
}

TEST_F(ShelfViewTest, TheHoveredSaveCellAndTemplateAreNamedInWhite) {
    ShelfState state = stateWith({});
    state.hovered = Item::save();
    auto list = draw(state);
    ASSERT_EQ(textsOf(*list, "Save current").size(), 1u);
    EXPECT_EQ(textsOf(*list, "Save current")[0].run.color, ShelfStyle::labelHovered);
    EXPECT_EQ(textsOf(*list, "Thirds")[0].run.color, ShelfStyle::labelIdle);

    state.hovered = Item::layoutTemplate(2);
    list = draw(state);
    EXPECT_EQ(textsOf(*list, "Thirds")[0].run.color, ShelfStyle::labelHovered);
    EXPECT_EQ(textsOf(*list, "Save current")[0].run.color, ShelfStyle::labelIdle);
}

TEST_F(ShelfViewTest, ALongNameIsCutWithAnEllipsisToFitUnderItsCell) {
    ShelfState state =
        stateWith({layoutOf("Safari · Notes · Terminal · Mail · Finder · Music · Photos", {})});
    state.hovered = Item::saved(0);
    const auto list = draw(state);
    const auto texts = list->all<DisplayList::Text>();
    const auto name = std::find_if(texts.begin(), texts.end(), [](const auto& t) {
        return t.run.text.rfind("Safari", 0) == 0;
    });
    ASSERT_NE(name, texts.end());
    EXPECT_TRUE(name->run.text.ends_with("…"));
    EXPECT_LE(ShelfText::width(name->run),
              ShelfLayout::cellSize.width + 2 * ShelfStyle::labelOverhang);
}

TEST_F(ShelfViewTest, FoldedTheShelfDrawsOnlyThePillWithTheWordLayouts) {
    ShelfState state = stateWith({sideBySide()});
    state.folded = true;
    state.hovered = Item::saved(0);
    const auto list = draw(state);
    const auto texts = list->all<DisplayList::Text>();
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].run.text, "Layouts");
    EXPECT_TRUE(list->all<DisplayList::Fill>().empty());
    EXPECT_TRUE(list->all<DisplayList::DrawImage>().empty());
    const Rect pill{0, 0, ShelfLayout::pillSize.width, ShelfLayout::pillSize.height};
    const double width = ShelfText::width(texts[0].run);
    EXPECT_NEAR(texts[0].baseline.x + width / 2, pill.midX(), 1e-9);
    EXPECT_GT(texts[0].baseline.y, pill.midY());
    EXPECT_LT(texts[0].baseline.y, pill.maxY());
    for (const auto& stroke : list->all<DisplayList::Stroke>())
        EXPECT_TRUE(holds(pill, boundsOf(stroke.path)));
}

TEST_F(ShelfViewTest, TheSaveCellShowsAPlusAndItsWords) {
    const auto list = draw(stateWith({}));
    const Rect screen = local(Item::save()).screen;
    const auto strokes = list->all<DisplayList::Stroke>();
    EXPECT_TRUE(std::any_of(strokes.begin(), strokes.end(), [&](const auto& s) {
        return s.path == ShelfGlyphs::plus(screen.mid(), ShelfStyle::plusArm);
    }));
    EXPECT_EQ(textsOf(*list, "Save current").size(), 1u);
}

TEST_F(ShelfViewTest, TheDividerStandsAtTheLayoutsDividerRelativeToTheOrigin) {
    const auto list = draw(stateWith({sideBySide()}));
    ASSERT_TRUE(layout.divider);
    const double x = *layout.divider - origin.x;
    const auto strokes = list->all<DisplayList::Stroke>();
    const auto divider = std::find_if(strokes.begin(), strokes.end(),
                                      [](const auto& s) { return s.color == ShelfStyle::divider; });
    ASSERT_NE(divider, strokes.end());
    const Rect line = boundsOf(divider->path);
    EXPECT_DOUBLE_EQ(line.minX(), x);
    EXPECT_DOUBLE_EQ(line.maxX(), x);
    const Rect screen = local(Item::save()).screen;
    EXPECT_GT(line.minY(), screen.minY());
    EXPECT_LT(line.maxY(), screen.maxY());
}

TEST_F(ShelfViewTest, CellsAreDrawnRelativeToTheWindowsCorner) {
    const auto list = draw(stateWith({}));
    const Rect global = layout.cells.front().screen;
    const auto bases = fillsIn(*list, ShelfCellPainter::screenBase(false, false));
    ASSERT_FALSE(bases.empty());
    EXPECT_EQ(bases.front().path,
              Path::roundedRect(global.offsetBy(-layout.frame.x, -layout.frame.y),
                                ShelfStyle::screenRadius));
}

TEST_F(ShelfViewTest, ACellForALayoutTheStateDoesNotHoldIsAnEmptyMiniature) {
    ShelfState state = stateWith({sideBySide()});
    layout = ShelfLayout::make(2, 5, area);
    origin = layout.frame.origin();
    state.hovered = Item::saved(1);
    view.configure(layout, state, origin);
    RecordingCanvas canvas(true);
    view.draw(canvas);
    const auto list = canvas.finish();
    EXPECT_EQ(fillsIn(*list, windowFill(safari)).size(), 1u);
    EXPECT_EQ(fillsIn(*list, ShelfCellPainter::screenBase(true, false)).size(), 1u);
}

TEST_F(ShelfViewTest, AnAttachedWindowGetsAFlippedDrawingOnEveryConfigure) {
    auto window = platform().windowHost.makeWindow(WindowDeferral::immediate);
    SimAgentWindow& sim = *desktop.windowHost().windows().back();
    view.attach(window.get());
    const int before = sim.contentUpdates();
    draw(stateWith({sideBySide()}));
    EXPECT_EQ(sim.contentUpdates(), before + 1);
    ASSERT_TRUE(sim.content());
    EXPECT_TRUE(sim.content()->flipped());
    EXPECT_EQ(fillsIn(*sim.content(), windowFill(notes)).size(), 1u);
    view.attach(nullptr);
}

}  // namespace
}  // namespace vistrel::testing
