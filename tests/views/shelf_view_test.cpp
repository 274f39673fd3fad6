#include "views/shelf_view.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/display_list.h"
#include "platform/platform.h"
#include "platform/sim/sim_scene.h"
#include "platform/sim/sim_window_host.h"
#include "support/sim_test.h"
#include "views/app_look.h"
#include "views/layouts_ui.h"
#include "views/shelf_cell_painter.h"
#include "views/shelf_glyphs.h"
#include "views/shelf_style.h"
#include "views/shelf_text.h"

namespace vistrel {
namespace {

using Item = ShelfLayout::Item;

const std::string safari = "com.apple.Safari";
const std::string notes = "com.apple.Notes";
// The default scene's screen without its menu bar and Dock.
constexpr Rect area{0, 25, 1440, 805};

SavedLayout layoutOf(std::string name, std::vector<SavedLayout::Window> windows) {
    return {{}, std::move(name), std::move(windows), 0};
}

SavedLayout::Window window(const std::string& bundleID, UnitRect rect) {
    return {bundleID, "", "", rect, std::nullopt};
}

// Safari on the left half, Notes on the right.
SavedLayout sideBySide() {
    return layoutOf("Safari · Notes",
                    {window(safari, {0, 0, 0.5, 1}), window(notes, {0.5, 0, 0.5, 1})});
}

Rect boundsOf(const Path& path) {
    return path.controlBounds();
}

bool holds(Rect outer, Rect inner) {
    constexpr double slack = 1e-9;
    return inner.minX() >= outer.minX() - slack && inner.maxX() <= outer.maxX() + slack &&
           inner.minY() >= outer.minY() - slack && inner.maxY() <= outer.maxY() + slack;
}

class ShelfViewTest : public testing::SimTest {
  protected:
    void SetUp() override { populateDefaultScene(desktop); }

    ShelfState stateWith(std::vector<SavedLayout> saved) {
        ShelfState state;
        state.saved = std::move(saved);
        state.templates = LayoutTemplate::all();
        return state;
    }

    // Draws the state on a shelf built for it, as the controller shows it unfolded.
    std::shared_ptr<const DisplayList> draw(const ShelfState& state) {
        layout = ShelfLayout::make(static_cast<int>(state.saved.size()),
                                   static_cast<int>(state.templates.size()), area);
        origin = state.folded ? layout.pill.origin() : layout.frame.origin();
        view.configure(layout, state, origin);
        RecordingCanvas canvas(true);
        view.draw(canvas);
        return canvas.finish();
    }

    // A cell's rectangles in the view's space.
    ShelfLayout::Cell local(const Item& item) const {
        for (auto cell : layout.cells) {
            if (cell.item != item) continue;
            cell.rect = cell.rect.offsetBy(-origin.x, -origin.y);
            cell.screen = cell.screen.offsetBy(-origin.x, -origin.y);
            return cell;
        }
        ADD_FAILURE() << "no such cell";
        return {};
    }

    static std::vector<DisplayList::Fill> fillsIn(const DisplayList& list, Color color) {
        std::vector<DisplayList::Fill> found;
        for (const auto& fill : list.all<DisplayList::Fill>()) {
            if (fill.color == color) found.push_back(fill);
        }
        return found;
    }

    static std::vector<DisplayList::Text> textsOf(const DisplayList& list, const std::string& s) {
        std::vector<DisplayList::Text> found;
        for (const auto& text : list.all<DisplayList::Text>()) {
            if (text.run.text == s) found.push_back(text);
        }
        return found;
    }

    static Color windowFill(const std::string& bundleID) {
        return AppLook::color(bundleID).withAlpha(ShelfStyle::windowFillAlpha);
    }

    // The position of the first fill in a colour among all operations.
    static std::ptrdiff_t orderOf(const DisplayList& list, Color color) {
        const auto& ops = list.operations();
        const auto found = std::find_if(ops.begin(), ops.end(), [&](const auto& op) {
            const auto* fill = std::get_if<DisplayList::Fill>(&op);
            return fill != nullptr && fill->color == color;
        });
        return found - ops.begin();
    }

    ShelfView view;
    ShelfLayout layout;
    Point origin;
};

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
    state.saved = {layoutOf("Work", {})};
    state.templates = LayoutTemplate::all();
    EXPECT_EQ(ShelfCellPainter::name(Item::saved(0), state), "Work");
    EXPECT_EQ(ShelfCellPainter::name(Item::save(), state), "Save current");
    EXPECT_EQ(ShelfCellPainter::name(Item::layoutTemplate(4), state), "Grid");
    EXPECT_EQ(ShelfCellPainter::name(Item::saved(1), state), "");
    EXPECT_EQ(ShelfCellPainter::name(Item::layoutTemplate(-1), state), "");
}

TEST(ShelfGlyphsCommand, TheSymbolFillsItsSquareSymmetrically) {
    const Point centre{20, 30};
    const Rect bounds = ShelfGlyphs::command(centre, 12).controlBounds();
    EXPECT_NEAR(bounds.minX(), 14, 1e-9);
    EXPECT_NEAR(bounds.maxX(), 26, 1e-9);
    EXPECT_NEAR(bounds.minY(), 24, 1e-9);
    EXPECT_NEAR(bounds.maxY(), 36, 1e-9);
}

TEST(ShelfGlyphsCommand, EachLoopMeetsTheSquaresSidesRunOn) {
    // Four sides and four loops, each loop three quarter turns.
    const Path path = ShelfGlyphs::command({0, 0}, 12);
    int moves = 0, curves = 0;
    for (const auto& element : path.elements()) {
        moves += element.verb == Path::Verb::move;
        curves += element.verb == Path::Verb::curve;
    }
    EXPECT_EQ(moves, 8);
    EXPECT_EQ(curves, 12);
    // The top-left loop starts on the left side's run-on and ends on the top side's.
    const auto& elements = path.elements();
    const auto loopStart = std::find_if(elements.begin() + 8, elements.end(),
                                        [](const auto& e) { return e.verb == Path::Verb::move; });
    EXPECT_NEAR(loopStart->points[0].x, -2, 1e-9);
    EXPECT_NEAR(loopStart->points[0].y, -4, 1e-9);
    EXPECT_NEAR((loopStart + 3)->points[2].x, -4, 1e-9);
    EXPECT_NEAR((loopStart + 3)->points[2].y, -2, 1e-9);
}

class ShelfTextTest : public testing::SimTest {};

TEST_F(ShelfTextTest, TextThatFitsIsLeftAlone) {
    const TextRun run{"Grid", ShelfStyle::labelFont(), Color::white()};
    EXPECT_EQ(ShelfText::fitted(run, 200), run);
}

TEST_F(ShelfTextTest, LongTextIsCutAtACharacterWithNoSpaceBeforeTheEllipsis) {
    const TextRun run{"Safari · Notes · Terminal", ShelfStyle::labelFont(), Color::white()};
    const double room = ShelfText::width(run) * 0.6;
    const TextRun cut = ShelfText::fitted(run, room);
    EXPECT_LE(ShelfText::width(cut), room);
    ASSERT_TRUE(cut.text.ends_with("…"));
    const std::string kept = cut.text.substr(0, cut.text.size() - std::string("…").size());
    EXPECT_EQ(run.text.rfind(kept, 0), 0u);
    EXPECT_NE(kept.back(), ' ');
    // A middle dot is two bytes: never half of one.
    EXPECT_NE(static_cast<unsigned char>(kept.back()), 0xC2);
}

TEST_F(ShelfTextTest, NoRoomAtAllLeavesTheEllipsisAlone) {
    const TextRun run{"Notes", ShelfStyle::labelFont(), Color::white()};
    EXPECT_EQ(ShelfText::fitted(run, 1).text, "…");
}

}  // namespace
}  // namespace vistrel
