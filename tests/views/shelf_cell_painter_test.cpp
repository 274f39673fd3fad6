#include "views/shelf_cell_painter.h"

#include <gtest/gtest.h>

#include "layouts/layout_template.h"
#include "views/layouts_ui.h"
#include "views/shelf_style.h"

namespace vistrel {
namespace {

using Item = ShelfLayout::Item;

TEST(ShelfCellPainterBase, HoveredIsLighterAndSelectedTakesTheAccent) {
    const Color idle = ShelfCellPainter::screenBase(false, false);
    const Color hovered = ShelfCellPainter::screenBase(true, false);
    const Color selected = ShelfCellPainter::screenBase(false, true);
    const Color both = ShelfCellPainter::screenBase(true, true);
    EXPECT_GT(hovered.alpha, idle.alpha);
    EXPECT_EQ(hovered.withAlpha(1), idle.withAlpha(1));
    EXPECT_EQ(selected.withAlpha(1), LayoutsUI::accent);
    EXPECT_GT(both.alpha, selected.alpha);
}

TEST(ShelfCellPainterMiniature, AUnitRectangleIsClippedToTheScreenAndKeptApart) {
    const Rect content{10, 20, 100, 50};
    const Rect whole = ShelfCellPainter::miniature({0, 0, 1, 1}, content);
    EXPECT_EQ(whole, content.insetBy(ShelfStyle::slotGap / 2, ShelfStyle::slotGap / 2));
    const Rect over = ShelfCellPainter::miniature({0.5, -1, 1, 1.5}, content);
    EXPECT_NEAR(over.minX(), 60 + ShelfStyle::slotGap / 2, 1e-9);
    EXPECT_NEAR(over.maxY(), 45 - ShelfStyle::slotGap / 2, 1e-9);
    EXPECT_TRUE(ShelfCellPainter::miniature({1, 0, 0.5, 1}, content).isEmpty());
}

TEST(ShelfCellPainterName, NamesComeFromTheStateAndUnknownIndexesHaveNone) {
    ShelfState state;
    state.saved = {SavedLayout{{}, "Work", {}, 0}};
    state.templates = LayoutTemplate::all();
    EXPECT_EQ(ShelfCellPainter::name(Item::saved(0), state), "Work");
    EXPECT_EQ(ShelfCellPainter::name(Item::save(), state), "Save current");
    EXPECT_EQ(ShelfCellPainter::name(Item::layoutTemplate(4), state), "Grid");
    EXPECT_EQ(ShelfCellPainter::name(Item::saved(1), state), "");
    EXPECT_EQ(ShelfCellPainter::name(Item::layoutTemplate(-1), state), "");
}

}  // namespace
}  // namespace vistrel
