// What the shelf draws while the user holds Option, drags a window or composes a layout.
#include <gtest/gtest.h>

#include "shelf_view_fixture.h"
#include "views/shelf_cell_painter.h"
#include "views/shelf_glyphs.h"
#include "views/shelf_text.h"

namespace vistrel::testing {
namespace {

using Item = ShelfLayout::Item;

TEST_F(ShelfViewTest, WithOptionHeldEverySavedCellTurnsRedWithADeleteBadge) {
    ShelfState state = stateWith({sideBySide(), sideBySide()});
    state.optionHeld = true;
    const auto list = draw(state);
    const auto badges = fillsIn(*list, ShelfStyle::deleteRed);
    ASSERT_EQ(badges.size(), 2u);
    for (int i = 0; i < 2; ++i) {
        const Rect screen = local(Item::saved(i)).screen;
        const Rect badge = boundsOf(badges[static_cast<std::size_t>(i)].path);
        EXPECT_TRUE(badge.contains(screen.origin())) << "on the top-left corner";
    }
    const Color redBase = ShelfStyle::deleteRed.withAlpha(ShelfStyle::deleteBaseAlpha);
    EXPECT_EQ(fillsIn(*list, redBase).size(), 2u);
    // Its windows keep their colours; the save cell and the templates are not deletable.
    EXPECT_EQ(fillsIn(*list, windowFill(safari)).size(), 2u);
    EXPECT_EQ(fillsIn(*list, ShelfCellPainter::screenBase(false, false)).size(),
              layout.cells.size() - 2);
}

TEST_F(ShelfViewTest, WithoutOptionNothingIsRed) {
    const auto list = draw(stateWith({sideBySide()}));
    for (const auto& fill : list->all<DisplayList::Fill>()) {
        EXPECT_NE(fill.color.withAlpha(1), ShelfStyle::deleteRed);
    }
}

TEST_F(ShelfViewTest, TheSlotUnderADraggedWindowIsFilledWithTheAccent) {
    ShelfState state = stateWith({});
    state.dropSlot = SlotRef{0, 1};
    const auto list = draw(state);
    const auto filled = fillsIn(*list, LayoutsUI::accent.withAlpha(ShelfStyle::dropFillAlpha));
    ASSERT_EQ(filled.size(), 1u);
    const Rect halves = local(Item::layoutTemplate(0)).screen;
    const Rect slot = boundsOf(filled[0].path);
    EXPECT_GT(slot.minX(), halves.midX());
    EXPECT_TRUE(holds(halves, slot));
}

TEST_F(ShelfViewTest, ComposingRingsTheTemplateAndFillsPickedSlotsInTheirApplicationsColour) {
    ShelfState state = stateWith({});
    state.composeTemplate = 3;  // main + stack
    state.composeApps = {safari, std::nullopt, std::nullopt};
    const auto list = draw(state);
    const Rect screen = local(Item::layoutTemplate(3)).screen;

    const auto base = fillsIn(*list, ShelfCellPainter::screenBase(false, true));
    ASSERT_EQ(base.size(), 1u);
    EXPECT_EQ(base[0].path, Path::roundedRect(screen, ShelfStyle::screenRadius));
    const auto strokes = list->all<DisplayList::Stroke>();
    EXPECT_TRUE(std::any_of(strokes.begin(), strokes.end(), [&](const auto& s) {
        return s.color == LayoutsUI::accent && s.style.width == ShelfStyle::selectedRingWidth &&
               holds(screen, boundsOf(s.path)) &&
               boundsOf(s.path).width >= screen.width - ShelfStyle::selectedRingWidth;
    }));

    const auto picked = fillsIn(*list, windowFill(safari));
    ASSERT_EQ(picked.size(), 1u);
    const Rect slot = boundsOf(picked[0].path);
    EXPECT_TRUE(holds(screen, slot));
    EXPECT_LT(slot.maxX(), screen.midX());
    // The empty slots carry their numbers; the template's name is lit.
    EXPECT_EQ(textsOf(*list, "2").size(), 1u);
    EXPECT_EQ(textsOf(*list, "3").size(), 1u);
    EXPECT_EQ(textsOf(*list, "Main + stack")[0].run.color, ShelfStyle::labelHovered);
}

TEST_F(ShelfViewTest, TheNextSlotToFillIsEdgedWithTheAccent) {
    ShelfState state = stateWith({});
    state.composeTemplate = 2;  // thirds
    state.composeApps = {std::nullopt, safari, std::nullopt};
    const auto list = draw(state);
    const Rect screen = local(Item::layoutTemplate(2)).screen;
    std::vector<Rect> accented;
    for (const auto& stroke : list->all<DisplayList::Stroke>()) {
        if (stroke.color == LayoutsUI::accent && stroke.style.width == ShelfStyle::windowEdgeWidth)
            accented.push_back(boundsOf(stroke.path));
    }
    ASSERT_EQ(accented.size(), 1u);
    EXPECT_LT(accented[0].maxX(), screen.midX());  // the left third
}

TEST_F(ShelfViewTest, TemplatesShowEveryEmptySlotWhenNotComposing) {
    const auto list = draw(stateWith({}));
    std::size_t slots = 0;
    for (const auto& t : LayoutTemplate::all())
        slots += t.slots.size();
    EXPECT_EQ(fillsIn(*list, ShelfStyle::slotFill).size(), slots);
    EXPECT_TRUE(list->all<DisplayList::DrawImage>().empty());
}

}  // namespace
}  // namespace vistrel::testing
