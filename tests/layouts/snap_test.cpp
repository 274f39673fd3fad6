#include "layouts/snap.h"

#include <gtest/gtest.h>

#include <random>
#include <unordered_set>
#include <vector>

namespace vistrel {
namespace {

constexpr std::uint64_t command = 0x100000;
constexpr std::uint64_t shift = 0x20000;
constexpr std::uint64_t control = 0x40000;
constexpr std::uint64_t option = 0x80000;
constexpr std::uint64_t capsLock = 0x10000;
constexpr std::uint64_t function = 0x800000;
constexpr std::int64_t leftArrow = 123;
constexpr std::int64_t rightArrow = 124;
constexpr std::int64_t downArrow = 125;
constexpr std::int64_t upArrow = 126;
constexpr std::int64_t returnKey = 36;
constexpr double third = 1.0 / 3.0;
constexpr double twoThirds = 2.0 / 3.0;

constexpr SnapKey allKeys[] = {SnapKey::left, SnapKey::right, SnapKey::up, SnapKey::down,
                               SnapKey::fill};

TEST(Snap, CommandWithArrowsAndReturnAreSnapKeys) {
    EXPECT_EQ(Snap::match(leftArrow, command), SnapKey::left);
    EXPECT_EQ(Snap::match(rightArrow, command), SnapKey::right);
    EXPECT_EQ(Snap::match(upArrow, command), SnapKey::up);
    EXPECT_EQ(Snap::match(downArrow, command), SnapKey::down);
    EXPECT_EQ(Snap::match(returnKey, command), SnapKey::fill);
    EXPECT_EQ(Snap::match(0, command), std::nullopt);
}

TEST(Snap, OtherModifiersWithCommandAreNotSnapKeys) {
    EXPECT_EQ(Snap::match(leftArrow, command | shift), std::nullopt);
    EXPECT_EQ(Snap::match(leftArrow, command | control), std::nullopt);
    EXPECT_EQ(Snap::match(leftArrow, command | option), std::nullopt);
    EXPECT_EQ(Snap::match(leftArrow, 0), std::nullopt);
}

TEST(Snap, CapsLockAndFunctionFlagsAreIgnored) {
    EXPECT_EQ(Snap::match(leftArrow, command | capsLock), SnapKey::left);
    EXPECT_EQ(Snap::match(rightArrow, command | function), SnapKey::right);
}

TEST(Snap, CommandDigitsGiveLayoutIndices) {
    const std::int64_t digitOne = 18;
    const std::int64_t digitNine = 25;
    const std::int64_t digitZero = 29;
    EXPECT_EQ(Snap::layoutIndex(digitOne, command), 0);
    EXPECT_EQ(Snap::layoutIndex(digitNine, command), 8);
    EXPECT_EQ(Snap::layoutIndex(23, command), 4);  // the digit 5 sits out of key-code order
    EXPECT_EQ(Snap::layoutIndex(digitZero, command), std::nullopt);
    EXPECT_EQ(Snap::layoutIndex(digitOne, command | option), std::nullopt);
    EXPECT_EQ(Snap::layoutIndex(digitOne, command | capsLock), 0);
}

TEST(Snap, RepeatedLeftCyclesHalfTwoThirdsThird) {
    UnitRect rect{0, 0, 0.5, 1};
    rect = Snap::next(rect, SnapKey::left);
    EXPECT_EQ(rect, (UnitRect{0, 0, twoThirds, 1}));
    rect = Snap::next(rect, SnapKey::left);
    EXPECT_EQ(rect, (UnitRect{0, 0, third, 1}));
    rect = Snap::next(rect, SnapKey::left);
    EXPECT_EQ(rect, (UnitRect{0, 0, 0.5, 1}));
}

TEST(Snap, RepeatedRightCyclesFromTheRightEdge) {
    UnitRect rect = Snap::next({0, 0, 0.5, 1}, SnapKey::right);
    EXPECT_EQ(rect, (UnitRect{0.5, 0, 0.5, 1}));
    rect = Snap::next(rect, SnapKey::right);
    EXPECT_EQ(rect, (UnitRect{1 - twoThirds, 0, twoThirds, 1}));
    rect = Snap::next(rect, SnapKey::right);
    EXPECT_EQ(rect, (UnitRect{1 - third, 0, third, 1}));
}

TEST(Snap, UpTwiceOnALeftHalfGivesTheQuarterThenTheHalfAgain) {
    const UnitRect quarter = Snap::next({0, 0, 0.5, 1}, SnapKey::up);
    EXPECT_EQ(quarter, (UnitRect{0, 0, 0.5, 0.5}));
    EXPECT_EQ(Snap::next(quarter, SnapKey::up), (UnitRect{0, 0, 0.5, 1}));
}

TEST(Snap, DownOnATopQuarterGoesToTheBottomQuarter) {
    EXPECT_EQ(Snap::next({0, 0, 0.5, 0.5}, SnapKey::down), (UnitRect{0, 0.5, 0.5, 0.5}));
    EXPECT_EQ(Snap::next({0, 0.5, 0.5, 0.5}, SnapKey::down), (UnitRect{0, 0, 0.5, 1}));
}

TEST(Snap, UnclassifiableWidthBecomesTheWholeWidth) {
    EXPECT_EQ(Snap::next({0.1, 0.2, 0.3, 0.4}, SnapKey::up), (UnitRect{0, 0, 1, 0.5}));
}

TEST(Snap, DownOnTheCenterThirdKeepsItCentred) {
    const UnitRect rect = Snap::next({third, 0, third, 1}, SnapKey::down);
    EXPECT_EQ(rect, (UnitRect{third, 0.5, third, 0.5}));
    EXPECT_EQ(Snap::name(rect), "Bottom center");
}

TEST(Snap, FillGivesTheWholeScreenFromAnywhere) {
    EXPECT_EQ(Snap::next({0.1, 0.2, 0.3, 0.4}, SnapKey::fill), (UnitRect{0, 0, 1, 1}));
    EXPECT_EQ(Snap::next({2, -3, 0.5, 0.5}, SnapKey::fill), (UnitRect{0, 0, 1, 1}));
}

TEST(Snap, WidthsWithinTheToleranceCountAsTheShare) {
    EXPECT_EQ(Snap::spans({0, 0, 0.51, 1}).h, Snap::Span::lead(0.5));
    EXPECT_EQ(Snap::spans({0, 0, 0.53, 1}).h, Snap::Span::whole());
    EXPECT_EQ(Snap::spans({0.49, 0, 0.51, 1}).h, Snap::Span::trail(0.5));
    EXPECT_EQ(Snap::spans({0.01, 0.02, 0.98, 0.99}),
              (Snap::Spans{Snap::Span::whole(), Snap::Span::whole()}));
}

TEST(Snap, SpansClassifyBothAxes) {
    EXPECT_EQ(Snap::spans({third, 0.5, third, 0.5}),
              (Snap::Spans{Snap::Span::middle(), Snap::Span::trail(0.5)}));
    EXPECT_EQ(Snap::spans({0, 0, twoThirds, 0.5}),
              (Snap::Spans{Snap::Span::lead(twoThirds), Snap::Span::lead(0.5)}));
    // A third that touches neither edge nor sits in the middle fits no case.
    EXPECT_EQ(Snap::spans({0.1, 0, third, third}).h, Snap::Span::whole());
    // Vertical thirds are not a vertical share.
    EXPECT_EQ(Snap::spans({0, 0, 1, twoThirds}).v, Snap::Span::whole());
}

TEST(Snap, NamesOfHalvesThirdsAndFill) {
    EXPECT_EQ(Snap::name({0, 0, 0.5, 1}), "Left half");
    EXPECT_EQ(Snap::name({0, 0, twoThirds, 1}), "Left two thirds");
    EXPECT_EQ(Snap::name({twoThirds, 0, third, 1}), "Right third");
    EXPECT_EQ(Snap::name({third, 0, third, 1}), "Center third");
    EXPECT_EQ(Snap::name({0, 0, 1, 0.5}), "Top half");
    EXPECT_EQ(Snap::name({0, 0.5, 1, 0.5}), "Bottom half");
    EXPECT_EQ(Snap::name({0, 0, 1, 1}), "Fill");
}

TEST(Snap, NamesOfQuartersAndCorners) {
    EXPECT_EQ(Snap::name({0.5, 0, 0.5, 0.5}), "Top right quarter");
    EXPECT_EQ(Snap::name({0, 0.5, 0.5, 0.5}), "Bottom left quarter");
    EXPECT_EQ(Snap::name({twoThirds, 0.5, third, 0.5}), "Bottom right");
    EXPECT_EQ(Snap::name({0, 0, twoThirds, 0.5}), "Top left");
    EXPECT_EQ(Snap::name({third, 0, third, 0.5}), "Top center");
}

TEST(Snap, ArrangementsWithAMiddleRowAreCustom) {
    EXPECT_EQ(Snap::name({0, third, 1, third}), "Custom");
    EXPECT_EQ(Snap::name({0, third, 0.5, third}), "Custom");
    EXPECT_EQ(Snap::name({third, third, third, third}), "Custom");
}

TEST(Snap, AWindowFittingNoSnapPositionIsNamedFill) {
    EXPECT_EQ(Snap::name({0.1, 0.2, 0.3, 0.4}), "Fill");
}

bool insideUnitSquare(const UnitRect& r) {
    constexpr double rounding = 1e-12;
    return r.x >= 0 && r.y >= 0 && r.w > 0 && r.h > 0 && r.x + r.w <= 1 + rounding &&
           r.y + r.h <= 1 + rounding;
}

TEST(Snap, EveryResultOfNextStaysInsideTheUnitSquareUnderEveryKey) {
    // Start from arbitrary rectangles, then follow every key from every result reached until
    // no new rectangle appears.
    std::mt19937_64 random(11);
    std::uniform_real_distribution<double> any(-1, 2);
    std::vector<UnitRect> pending;
    for (int i = 0; i < 200; ++i) {
        for (SnapKey key : allKeys) {
            pending.push_back(
                Snap::next({any(random), any(random), any(random), any(random)}, key));
        }
    }
    std::unordered_set<UnitRect> seen;
    while (!pending.empty()) {
        const UnitRect rect = pending.back();
        pending.pop_back();
        if (!seen.insert(rect).second) continue;
        EXPECT_TRUE(insideUnitSquare(rect))
            << rect.x << ", " << rect.y << ", " << rect.w << ", " << rect.h;
        for (SnapKey key : allKeys)
            pending.push_back(Snap::next(rect, key));
    }
    // The reachable positions: every width share at either edge or the middle, by every row.
    EXPECT_GE(seen.size(), 20u);
    EXPECT_LT(seen.size(), 100u);
}

}  // namespace
}  // namespace vistrel
