#include "windows/screens.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/sim_test.h"

namespace vistrel {
namespace {

constexpr Size secondSize{1920, 1080};
const ScreenInfo primary{
    "5A1D0000-0000-4000-8000-000000000001", {0, 0, 1440, 900}, {0, 25, 1440, 805}};
const ScreenInfo second{
    "5A1D0000-0000-4000-8000-000000000002", {1440, 0, 1920, 1080}, {1440, 25, 1920, 985}};

class ScreensTest : public testing::SimTest {};

TEST_F(ScreensTest, TheSnapshotLeavesOutTheMenuBarAtTheTopAndTheDockAtTheBottom) {
    EXPECT_EQ(Screens::snapshot(), std::vector<ScreenInfo>{primary});
}

TEST_F(ScreensTest, ADisplayToTheRightIsFlippedAboutThePrimaryDisplaysHeight) {
    desktop.addScreenToTheRight(secondSize);

    EXPECT_EQ(Screens::snapshot(), (std::vector<ScreenInfo>{primary, second}));
}

TEST_F(ScreensTest, WithoutScreensTheSnapshotIsEmpty) {
    desktop.screens().clear();

    EXPECT_TRUE(Screens::snapshot().empty());
}

TEST_F(ScreensTest, TheIdentifierIsTheDisplaysUUID) {
    EXPECT_EQ(Screens::id(desktop.screens().front()), "5A1D0000-0000-4000-8000-000000000001");
}

TEST_F(ScreensTest, AScreenWithoutADisplayNumberHasAnEmptyIdentifier) {
    desktop.screens().front().displayID.reset();

    EXPECT_EQ(Screens::id(desktop.screens().front()), "");
}

TEST_F(ScreensTest, AScreenWhoseDisplayHasNoUUIDHasAnEmptyIdentifier) {
    ScreenDescription unknown = desktop.screens().front();
    unknown.displayID = 99;

    EXPECT_EQ(Screens::id(unknown), "");
}

TEST_F(ScreensTest, AtFindsTheScreenUnderAPointWithTheLeftEdgeBelongingToTheScreen) {
    const std::vector<ScreenInfo> screens{primary, second};

    EXPECT_EQ(Screens::at({1439.5, 10}, screens), primary);
    EXPECT_EQ(Screens::at({1440, 10}, screens), second);
    EXPECT_EQ(Screens::at({1000, 950}, screens), std::nullopt);
}

TEST_F(ScreensTest, HoldingPicksTheScreenUnderTheRectanglesCentre) {
    EXPECT_EQ(Screens::holding({1300, 100, 400, 300}, {primary, second}), second);
}

TEST_F(ScreensTest, HoldingPrefersTheCentreOverALargerOverlap) {
    const ScreenInfo small{"small", {0, 0, 100, 100}, {0, 0, 100, 100}};
    const ScreenInfo large{"large", {100, 0, 1000, 1000}, {100, 0, 1000, 1000}};

    // Centre (90, 95) on the small screen, which holds 2000 square points of 5400.
    EXPECT_EQ(Screens::holding({0, 80, 180, 30}, {small, large}), small);
}

TEST_F(ScreensTest, ARectangleCentredInTheGapGoesToTheDisplayWithTheLargerOverlap) {
    // Centre (1250, 950): below the primary display, left of the taller one. The primary
    // holds 440×50 points of it, the second 60×200.
    EXPECT_EQ(Screens::holding({1000, 850, 500, 200}, {primary, second}), primary);
    // Centre (1430, 970): the primary holds 100×40, the second 80×220.
    EXPECT_EQ(Screens::holding({1340, 860, 180, 220}, {primary, second}), second);
}

TEST_F(ScreensTest, OnEqualOverlapsTheEarlierScreenWins) {
    const ScreenInfo left{"left", {0, 0, 100, 100}, {0, 0, 100, 100}};
    const ScreenInfo right{"right", {200, 0, 100, 100}, {200, 0, 100, 100}};

    EXPECT_EQ(Screens::holding({50, 0, 200, 100}, {left, right}), left);
    EXPECT_EQ(Screens::holding({50, 0, 200, 100}, {right, left}), right);
}

TEST_F(ScreensTest, ARectangleTouchingNoScreenIsHeldByNone) {
    EXPECT_EQ(Screens::holding({5000, 5000, 100, 100}, {primary, second}), std::nullopt);
    EXPECT_EQ(Screens::holding({1440, 900, 100, 100}, {primary}), std::nullopt);
}

TEST_F(ScreensTest, AnEmptySnapshotHoldsNothing) {
    EXPECT_EQ(Screens::holding({0, 0, 100, 100}, {}), std::nullopt);
}

}  // namespace
}  // namespace vistrel
