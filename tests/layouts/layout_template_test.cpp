#include "layouts/layout_template.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

TEST(LayoutTemplate, OffersTheFiveTemplatesInShelfOrder) {
    const auto& all = LayoutTemplate::all();
    ASSERT_EQ(all.size(), 5u);
    const std::pair<const char*, const char*> expected[] = {{"halves", "Halves"},
                                                            {"main-side", "Main + side"},
                                                            {"thirds", "Thirds"},
                                                            {"main-stack", "Main + stack"},
                                                            {"grid", "Grid"}};
    for (std::size_t i = 0; i < all.size(); ++i) {
        EXPECT_EQ(all[i].id, expected[i].first);
        EXPECT_EQ(all[i].name, expected[i].second);
    }
}

TEST(LayoutTemplate, SlotsAreTheTablesRectangles) {
    const auto& all = LayoutTemplate::all();
    EXPECT_EQ(all[0].slots, (std::vector<UnitRect>{{0, 0, 0.5, 1}, {0.5, 0, 0.5, 1}}));
    EXPECT_EQ(all[3].slots,
              (std::vector<UnitRect>{{0, 0, 0.5, 1}, {0.5, 0, 0.5, 0.5}, {0.5, 0.5, 0.5, 0.5}}));
    EXPECT_EQ(all[4].slots,
              (std::vector<UnitRect>{
                  {0, 0, 0.5, 0.5}, {0.5, 0, 0.5, 0.5}, {0, 0.5, 0.5, 0.5}, {0.5, 0.5, 0.5, 0.5}}));
}

TEST(LayoutTemplate, ThirdsAreTheNearestDoublesNotRoundedDecimals) {
    const auto& all = LayoutTemplate::all();
    const double third = 0.3333333333333333;
    const double twoThirds = 0.6666666666666666;
    EXPECT_EQ(all[1].slots,
              (std::vector<UnitRect>{{0, 0, twoThirds, 1}, {twoThirds, 0, third, 1}}));
    EXPECT_EQ(all[2].slots, (std::vector<UnitRect>{
                                {0, 0, third, 1}, {third, 0, third, 1}, {twoThirds, 0, third, 1}}));
    EXPECT_EQ(third, 1.0 / 3.0);
    EXPECT_EQ(twoThirds, 2.0 / 3.0);
}

}  // namespace
}  // namespace vistrel
