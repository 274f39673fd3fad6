#include "layouts/shelf_layout.h"

#include <gtest/gtest.h>

#include <random>

namespace vistrel {
namespace {

using Item = ShelfLayout::Item;

const Rect laptop{0, 25, 1440, 805};
const int templateCount = static_cast<int>(LayoutTemplate::all().size());

std::vector<Item> items(const ShelfLayout& layout) {
    std::vector<Item> result;
    for (const auto& cell : layout.cells)
        result.push_back(cell.item);
    return result;
}

TEST(ShelfLayout, ThreeSavedLayoutsAndFiveTemplatesOnALaptopScreen) {
    const ShelfLayout layout = ShelfLayout::make(3, templateCount, laptop);
    // Band 553, seven cells fit, three saved layouts shown: 553 + 4 × 96 + 3 × 12 + 28.
    EXPECT_EQ(layout.frame.width, 1001);
    EXPECT_EQ(layout.frame, (Rect{220, 25 + 805 - 16 - 102, 1001, 102}));
    EXPECT_EQ(items(layout), (std::vector<Item>{Item::saved(0), Item::saved(1), Item::saved(2),
                                                Item::save(), Item::layoutTemplate(0),
                                                Item::layoutTemplate(1), Item::layoutTemplate(2),
                                                Item::layoutTemplate(3), Item::layoutTemplate(4)}));
}

TEST(ShelfLayout, CellsRunLeftToRightWithTheDividerInTheMiddleOfItsGap) {
    const ShelfLayout layout = ShelfLayout::make(3, templateCount, laptop);
    const double top = layout.frame.minY() + 14;
    EXPECT_EQ(layout.cells[0].rect, (Rect{234, top, 96, 80}));
    EXPECT_EQ(layout.cells[0].screen, (Rect{234, top, 96, 60}));
    EXPECT_EQ(layout.cells[3].rect.x, 234 + 3 * 108);  // the save cell
    EXPECT_EQ(layout.cells[4].rect.x, 234 + 4 * 108 + 13);
    EXPECT_EQ(layout.divider, 234 + 4 * 108 + 13 - 12.5);
    EXPECT_EQ(layout.cells[4].rect.x - layout.cells[3].rect.maxX(), 25);
    EXPECT_EQ(layout.cells.back().rect.maxX(), layout.frame.maxX() - 14);
}

TEST(ShelfLayout, PillLiesAlongTheBottomEdgeOfTheFrame) {
    const ShelfLayout layout = ShelfLayout::make(3, templateCount, laptop);
    EXPECT_EQ(layout.pill,
              (Rect{std::round(layout.frame.midX() - 56), layout.frame.maxY() - 26, 112, 26}));
}

TEST(ShelfLayout, AtMostNineSavedLayoutsGetCells) {
    const ShelfLayout layout = ShelfLayout::make(12, templateCount, {0, 0, 5120, 1440});
    EXPECT_EQ(layout.cells.size(), 9u + 1u + 5u);
    EXPECT_EQ(layout.cells[8].item, Item::saved(8));
    EXPECT_EQ(layout.cells[9].item, Item::save());
}

TEST(ShelfLayout, SavedLayoutsThatDoNotFitGetNoCell) {
    // 1440 − 60 − 553 + 12 = 839, so 7 cells fit: the save cell and six saved layouts.
    const ShelfLayout layout = ShelfLayout::make(8, templateCount, laptop);
    EXPECT_EQ(layout.cells[5].item, Item::saved(5));
    EXPECT_EQ(layout.cells[6].item, Item::save());
}

TEST(ShelfLayout, NarrowAreaStillHasTheSaveCellAndAllTemplates) {
    const Rect narrow{0, 0, 400, 600};
    const ShelfLayout layout = ShelfLayout::make(4, templateCount, narrow);
    EXPECT_EQ(layout.cells.front().item, Item::save());
    EXPECT_EQ(layout.cells.size(), 1u + 5u);
    EXPECT_GT(layout.frame.width, narrow.width);
    EXPECT_NEAR(layout.frame.midX(), narrow.midX(), 0.5);
}

TEST(ShelfLayout, WithoutTemplatesThereIsNoDividerAndNoBand) {
    const ShelfLayout layout = ShelfLayout::make(2, 0, laptop);
    EXPECT_EQ(layout.divider, std::nullopt);
    EXPECT_EQ(layout.frame.width, 3 * 96 + 2 * 12 + 28);
    EXPECT_EQ(items(layout), (std::vector<Item>{Item::saved(0), Item::saved(1), Item::save()}));
}

TEST(ShelfLayout, NegativeCountsAreTreatedAsNone) {
    EXPECT_EQ(ShelfLayout::make(-3, -1, laptop), ShelfLayout::make(0, 0, laptop));
}

TEST(ShelfLayout, FrameIsCentredAndRoundedHalvesAwayFromZero) {
    // The width 124 of a lone save cell centred on 100.5 starts at 38.5, rounded to 39.
    const ShelfLayout layout = ShelfLayout::make(0, 0, {0, 0.5, 201, 300.25});
    EXPECT_EQ(layout.frame, (Rect{39, 183, 124, 102}));
}

TEST(ShelfLayout, CellUnderThePointUsesTheGrownRectangle) {
    const ShelfLayout layout = ShelfLayout::make(3, templateCount, laptop);
    const Rect first = layout.cells[0].rect;
    EXPECT_EQ(layout.cell({first.midX(), first.midY()})->item, Item::saved(0));
    // Grown by 6, neighbours meet halfway through their spacing; there the left cell wins.
    EXPECT_EQ(layout.cell({first.maxX() + 5, first.midY()})->item, Item::saved(0));
    EXPECT_EQ(layout.cell({first.maxX() + 6, first.midY()})->item, Item::saved(0));
    EXPECT_EQ(layout.cell({first.maxX() + 6.5, first.midY()})->item, Item::saved(1));
    // Between the save cell and the first template, beyond both grown rectangles.
    const Rect save = layout.cells[3].rect;
    EXPECT_EQ(layout.cell({save.maxX() + 12, save.midY()}), std::nullopt);
}

TEST(ShelfLayout, NoCellOutsideTheFrameEvenWhereAGrownCellWouldReach) {
    ShelfLayout layout = ShelfLayout::make(3, templateCount, laptop);
    const Rect first = layout.cells[0].rect;
    const Point leftOfFirst{first.minX() - 3, first.midY()};
    const Point belowFirst{first.midX(), first.maxY() + 3};
    EXPECT_EQ(layout.cell(leftOfFirst)->item, Item::saved(0));
    EXPECT_EQ(layout.cell(belowFirst)->item, Item::saved(0));
    // A frame that ends at the first cell's left and bottom edges leaves the grown parts of
    // the cell outside.
    layout.frame = {first.minX(), layout.frame.y, layout.frame.maxX() - first.minX(),
                    first.maxY() - layout.frame.y};
    EXPECT_EQ(layout.cell(leftOfFirst), std::nullopt);
    EXPECT_EQ(layout.cell(belowFirst), std::nullopt);
}

TEST(ShelfLayout, SlotUnderThePointInATemplatesMiniature) {
    const ShelfLayout layout = ShelfLayout::make(3, templateCount, laptop);
    const auto& templates = LayoutTemplate::all();
    const Rect halves = layout.cells[4].screen;
    EXPECT_EQ(layout.slot({halves.minX() + 0.75 * halves.width, halves.midY()}, templates),
              (SlotRef{0, 1}));
    EXPECT_EQ(layout.slot({halves.minX() + 0.25 * halves.width, halves.midY()}, templates),
              (SlotRef{0, 0}));
    const Rect grid = layout.cells[8].screen;
    EXPECT_EQ(layout.slot({grid.minX() + 10, grid.maxY() - 10}, templates), (SlotRef{4, 2}));
}

TEST(ShelfLayout, NoSlotBetweenTheSaveCellAndTheTemplatesOrBelowAMiniature) {
    const ShelfLayout layout = ShelfLayout::make(3, templateCount, laptop);
    const auto& templates = LayoutTemplate::all();
    const Rect save = layout.cells[3].rect;
    EXPECT_EQ(layout.slot({save.maxX() + 12, save.minY() + 30}, templates), std::nullopt);
    EXPECT_EQ(layout.slot({save.midX(), save.minY() + 30}, templates), std::nullopt);
    const Rect halves = layout.cells[4].rect;
    EXPECT_EQ(layout.slot({halves.midX(), halves.maxY() - 5}, templates), std::nullopt);
}

TEST(ShelfLayout, SlotIgnoresTemplateCellsBeyondTheGivenTemplates) {
    const ShelfLayout layout = ShelfLayout::make(0, templateCount, laptop);
    const std::vector<LayoutTemplate> onlyHalves{LayoutTemplate::all()[0]};
    const Rect grid = layout.cells.back().screen;
    EXPECT_EQ(layout.slot({grid.midX(), grid.midY()}, onlyHalves), std::nullopt);
}

TEST(ShelfLayout, KeepsOpenNearTheFrameAndFarBelowThePill) {
    const ShelfLayout layout = ShelfLayout::make(3, templateCount, laptop);
    const Rect frame = layout.frame;
    const Rect pill = layout.pill;
    EXPECT_TRUE(layout.keepsOpen({frame.minX() - 23, frame.minY() - 23}));
    EXPECT_FALSE(layout.keepsOpen({frame.minX() - 25, frame.midY()}));
    EXPECT_FALSE(layout.keepsOpen({frame.midX(), frame.minY() - 25}));
    // The pill band reaches 140 below the pill, limits included.
    EXPECT_TRUE(layout.keepsOpen({pill.maxX() + 24, pill.maxY() + 140}));
    EXPECT_TRUE(layout.keepsOpen({pill.minX() - 24, pill.maxY() + 100}));
    EXPECT_FALSE(layout.keepsOpen({pill.maxX() + 24.5, pill.maxY() + 100}));
    EXPECT_FALSE(layout.keepsOpen({pill.midX(), pill.maxY() + 140.5}));
}

void expectCellsApartAndInsideTheFrame(const ShelfLayout& layout) {
    for (std::size_t i = 0; i < layout.cells.size(); ++i) {
        const auto& cell = layout.cells[i];
        EXPECT_TRUE(layout.frame.contains(cell.rect)) << "cell " << i;
        EXPECT_TRUE(cell.rect.contains(cell.screen)) << "cell " << i;
        for (std::size_t j = i + 1; j < layout.cells.size(); ++j) {
            EXPECT_FALSE(cell.rect.intersects(layout.cells[j].rect)) << i << " and " << j;
        }
    }
}

TEST(ShelfLayout, CellsNeverOverlapAndStayInsideTheFrameForAnyAreaAndCount) {
    std::mt19937_64 random(5);
    std::uniform_real_distribution<double> width(300, 7000);
    std::uniform_real_distribution<double> origin(-3000, 3000);
    for (int templates = 0; templates <= templateCount; ++templates) {
        for (int saved = 0; saved <= 20; ++saved) {
            for (int round = 0; round < 30; ++round) {
                const double areaWidth = round == 0 ? 300 : round == 1 ? 7000 : width(random);
                const Rect area{origin(random), origin(random), areaWidth, 800};
                const ShelfLayout layout = ShelfLayout::make(saved, templates, area);
                SCOPED_TRACE(::testing::Message() << saved << " saved, " << templates
                                                  << " templates, " << areaWidth << " wide");
                expectCellsApartAndInsideTheFrame(layout);
                const auto shownSaved = layout.cells.size() - 1 - templates;
                EXPECT_LE(shownSaved, std::min<std::size_t>(saved, 9));
                // Saved cells are only shown where the whole shelf fits within the 16-point
                // margins, give or take the half point of rounding its position.
                if (shownSaved > 0) {
                    EXPECT_TRUE(area.insetBy(15.5, 0).contains(layout.frame));
                }
            }
        }
    }
}

}  // namespace
}  // namespace vistrel
