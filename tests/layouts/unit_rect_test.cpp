#include "layouts/unit_rect.h"

#include <gtest/gtest.h>

#include <random>
#include <unordered_set>

namespace vistrel {
namespace {

const Rect visibleFrame{0, 25, 1440, 875};

TEST(UnitRect, LeftHalfStandsOneGapFromTheEdges) {
    EXPECT_EQ((UnitRect{0, 0, 0.5, 1}.frame(visibleFrame, 10)), (Rect{10, 35, 705, 855}));
}

TEST(UnitRect, NeighbouringHalvesEndUpOneGapApart) {
    const Rect left = UnitRect{0, 0, 0.5, 1}.frame(visibleFrame, 10);
    const Rect right = UnitRect{0.5, 0, 0.5, 1}.frame(visibleFrame, 10);
    EXPECT_EQ(right, (Rect{725, 35, 705, 855}));
    EXPECT_EQ(right.minX() - left.maxX(), 10);
}

TEST(UnitRect, FrameRoundsHalvesAwayFromZero) {
    // 101 × 0.5 = 50.5 in every field: positive halves go up, negative halves go down.
    EXPECT_EQ((UnitRect{0.5, 0.5, 0.5, 0.5}.frame({0, 0, 101, 101}, 0)), (Rect{51, 51, 51, 51}));
    EXPECT_EQ((UnitRect{0.5, 0.5, 0.5, 0.5}.frame({-101, -101, 101, 101}, 0)),
              (Rect{-51, -51, 51, 51}));
}

TEST(UnitRect, FrameKeepsUnitRectanglesOutsideTheArea) {
    EXPECT_EQ((UnitRect{-0.25, 0, 0.5, 1}.frame({0, 0, 1000, 800}, 0)), (Rect{-250, 0, 500, 800}));
}

TEST(UnitRect, OfInvertsFrameWithAGap) {
    const UnitRect right{0.5, 0, 0.5, 1};
    EXPECT_EQ(UnitRect::of({725, 35, 705, 855}, visibleFrame, 10), right);
}

TEST(UnitRect, WithNoGapFrameAndOfAreInversesUpToRounding) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> unit(-0.5, 1.5);
    std::uniform_real_distribution<double> share(0.01, 1.5);
    std::uniform_real_distribution<double> size(100, 4000);
    for (int i = 0; i < 1000; ++i) {
        const Rect area{unit(random) * 1000, unit(random) * 1000, size(random), size(random)};
        const UnitRect original{unit(random), unit(random), share(random), share(random)};
        const UnitRect back = UnitRect::of(original.frame(area, 0), area, 0);
        // Each of the four numbers moves by at most half a point when rounded.
        EXPECT_NEAR(back.x, original.x, 0.5 / area.width);
        EXPECT_NEAR(back.y, original.y, 0.5 / area.height);
        EXPECT_NEAR(back.w, original.w, 0.5 / area.width);
        EXPECT_NEAR(back.h, original.h, 0.5 / area.height);
    }
}

TEST(UnitRect, WithNoGapAWholePointFrameSurvivesOfAndFrameExactly) {
    const Rect area{0, 25, 1440, 875};
    for (const Rect frame :
         {Rect{0, 25, 720, 875}, Rect{13, 40, 333, 501}, Rect{-40, 100, 600, 900}}) {
        EXPECT_EQ(UnitRect::of(frame, area, 0).frame(area, 0), frame);
    }
}

TEST(UnitRect, OfAnAreaSmallerThanTheGapIsAllZero) {
    EXPECT_EQ(UnitRect::of({0, 0, 5, 5}, {0, 0, 8, 8}, 10), (UnitRect{0, 0, 0, 0}));
    EXPECT_EQ(UnitRect::of({0, 0, 5, 5}, {0, 0, 10, 400}, 10), (UnitRect{0, 0, 0, 0}));
}

TEST(UnitRect, OfDoesNotClampAWindowHangingOverTheEdge) {
    const UnitRect unit = UnitRect::of({-100, 0, 600, 1000}, {0, 0, 1000, 1000}, 0);
    EXPECT_EQ(unit, (UnitRect{-0.1, 0, 0.6, 1}));
}

TEST(UnitRect, EqualAndHashedOverAllFourFields) {
    const UnitRect a{0.1, 0.2, 0.3, 0.4};
    EXPECT_EQ(a, (UnitRect{0.1, 0.2, 0.3, 0.4}));
    EXPECT_NE(a, (UnitRect{0.1, 0.2, 0.4, 0.3}));
    std::unordered_set<UnitRect> set{a, UnitRect{0.1, 0.2, 0.3, 0.4}, UnitRect{0.2, 0.1, 0.3, 0.4}};
    EXPECT_EQ(set.size(), 2u);
}

}  // namespace
}  // namespace vistrel
