#include "platform/geometry.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

TEST(Rect, ContainsItsMinEdgesButNotItsMaxEdges) {
    const Rect r{10, 20, 30, 40};
    EXPECT_TRUE(r.contains(Point{10, 20}));
    EXPECT_FALSE(r.contains(Point{40, 30}));
    EXPECT_FALSE(r.contains(Point{20, 60}));
    EXPECT_TRUE(r.contains(Point{39.9, 59.9}));
}

TEST(Rect, EmptyRectContainsNothing) {
    EXPECT_FALSE((Rect{5, 5, 0, 10}).contains(Point{5, 6}));
}

TEST(Rect, IntersectionOfDisjointRectsIsEmpty) {
    EXPECT_TRUE((Rect{0, 0, 10, 10}).intersection(Rect{20, 20, 5, 5}).isEmpty());
    EXPECT_EQ((Rect{0, 0, 10, 10}).intersection(Rect{5, 5, 10, 10}), (Rect{5, 5, 5, 5}));
}

TEST(Rect, UniteIgnoresEmptyRects) {
    EXPECT_EQ((Rect{}).unite(Rect{1, 2, 3, 4}), (Rect{1, 2, 3, 4}));
    EXPECT_EQ((Rect{0, 0, 1, 1}).unite(Rect{4, 4, 1, 1}), (Rect{0, 0, 5, 5}));
}

TEST(Rect, NegativeInsetGrowsOnEverySide) {
    EXPECT_EQ((Rect{10, 10, 20, 20}).insetBy(-5, -2), (Rect{5, 8, 30, 24}));
}

TEST(Rect, IntegralRoundsOutwards) {
    EXPECT_EQ((Rect{0.5, 1.2, 2.2, 2.0}).integral(), (Rect{0, 1, 3, 3}));
}

TEST(Rect, NegativeSizesAreNormalisedByTheEdgeAccessors) {
    const Rect r{10, 10, -4, -6};
    EXPECT_EQ(r.minX(), 6);
    EXPECT_EQ(r.maxY(), 10);
    EXPECT_EQ(r.area(), 24);
}

}  // namespace
}  // namespace vistrel
