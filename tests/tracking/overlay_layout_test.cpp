#include "tracking/overlay_layout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace vistrel {
namespace {

using Button = OverlayButton;
const std::vector<Button> allButtons = {Button::close, Button::minimize, Button::maximize};

std::vector<Button> kinds(const OverlayLayout& layout) {
    std::vector<Button> result;
    for (const auto& item : layout.items)
        result.push_back(item.kind);
    return result;
}

TEST(OverlayLayoutMake, CloseLeadsAndTheOthersFollowByRawValue) {
    const auto layout = OverlayLayout::make({0, 0, 400, 300}, 20,
                                            {Button::maximize, Button::close, Button::minimize}, 4);
    EXPECT_EQ(kinds(layout), allButtons);
}

TEST(OverlayLayoutMake, WithoutCloseTheStripStartsWithTheLowestRawValue) {
    const auto layout =
        OverlayLayout::make({0, 0, 400, 300}, 20, {Button::maximize, Button::minimize}, 4);
    EXPECT_EQ(kinds(layout), (std::vector<Button>{Button::minimize, Button::maximize}));
}

TEST(OverlayLayoutMake, DuplicatesOfOtherButtonsAreKeptAndCloseLeadsOnce) {
    const auto layout = OverlayLayout::make(
        {0, 0, 400, 300}, 20,
        {Button::maximize, Button::close, Button::minimize, Button::close, Button::maximize}, 4);
    EXPECT_EQ(kinds(layout), (std::vector<Button>{Button::close, Button::minimize, Button::maximize,
                                                  Button::maximize}));
}

TEST(OverlayLayoutMake,
     FirstButtonStraddlesTheThumbnailsTopLeftCornerAndTheNextFollowsAfterTheGap) {
    const auto layout = OverlayLayout::make({100, 200, 400, 300}, 20, allButtons, 4);
    ASSERT_EQ(layout.items.size(), 3u);
    EXPECT_EQ(layout.items[0].rect, (Rect{87, 188, 20, 20}));
    EXPECT_EQ(layout.items[1].rect, (Rect{111, 188, 20, 20}));
    EXPECT_EQ(layout.items[2].rect, (Rect{135, 188, 20, 20}));
}

TEST(OverlayLayoutMake, NoEnabledButtonsGiveNoItemsAndNoSafeZone) {
    const auto layout = OverlayLayout::make({100, 200, 400, 300}, 20, {}, 4);
    EXPECT_TRUE(layout.items.empty());
    EXPECT_TRUE(layout.safeZone.empty());
}

TEST(OverlayLayoutMake, SafeZoneIsTheZoneOfTheStripsBounds) {
    const Rect thumb{100, 200, 400, 300};
    const auto layout = OverlayLayout::make(thumb, 25, allButtons, 4);
    const Rect strip = layout.items.front().rect.unite(layout.items.back().rect);
    EXPECT_EQ(layout.safeZone, OverlayLayout::zone(thumb, strip, 25));
}

TEST(OverlayLayoutMake, LayoutsCompareFieldByField) {
    const Rect thumb{100, 200, 400, 300};
    EXPECT_EQ(OverlayLayout::make(thumb, 20, allButtons, 4),
              OverlayLayout::make(thumb, 20, allButtons, 4));
    EXPECT_NE(OverlayLayout::make(thumb, 20, allButtons, 4),
              OverlayLayout::make(thumb, 25, allButtons, 4));
    EXPECT_NE(OverlayLayout::make(thumb, 20, allButtons, 4),
              OverlayLayout::make(thumb.offsetBy(1, 0), 20, allButtons, 4));
}

TEST(OverlayLayoutZone, IsAPentagonFromThePaddedStripIntoTheThumbnailsCorner) {
    // Strip 20-point buttons at (87, 188) to (155, 208); padding 5 points.
    const auto zone = OverlayLayout::zone({100, 200, 400, 300}, {87, 188, 68, 20}, 20);
    // reachX = max(min(80, 200), 20 + 160 - 100) = 80; reachY = max(min(80, 150), 20 + 213 - 200)
    // = 80.
    EXPECT_EQ(zone, (std::vector<Point>{{82, 183}, {160, 183}, {180, 200}, {100, 280}, {82, 213}}));
}

TEST(OverlayLayoutZone, ANarrowThumbnailStillReachesOneButtonBeyondThePaddedStrip) {
    // 100 points wide, less than 8 × 20: half its width (50) is smaller than four buttons.
    const Rect thumb{100, 200, 100, 60};
    const auto layout = OverlayLayout::make(thumb, 20, allButtons, 4);
    const double padMaxX = 155 + 5;
    // The strip itself reaches past half the thumbnail, so one button beyond the pad wins.
    EXPECT_DOUBLE_EQ(layout.safeZone[2].x, padMaxX + 20);
    EXPECT_DOUBLE_EQ(layout.safeZone[2].y, 200);
    // Vertically half the thumbnail (30) is less than one button below the pad (20 + 13).
    EXPECT_DOUBLE_EQ(layout.safeZone[3].y, 200 + 33);
}

TEST(OverlayLayoutZone, ANarrowThumbnailWithOneButtonIsBoundedByHalfItsWidth) {
    // One button: the pad ends at 112; one button beyond is 32 right of the corner, while
    // half the 100-point thumbnail is 50, less than four buttons (80).
    const auto layout = OverlayLayout::make({100, 200, 100, 400}, 20, {Button::close}, 4);
    EXPECT_DOUBLE_EQ(layout.safeZone[2].x, 100 + 50);
    EXPECT_DOUBLE_EQ(layout.safeZone[3].y, 200 + 80);
}

TEST(PolygonContains, AnEmptyPolygonContainsNothing) {
    EXPECT_FALSE(polygonContains({}, {0, 0}));
}

TEST(PolygonContains, APointLeftOfAVerticalEdgeToggles) {
    const std::vector<Point> square{{0, 0}, {10, 0}, {10, 10}, {0, 10}};
    EXPECT_TRUE(polygonContains(square, {5, 5}));
    EXPECT_FALSE(polygonContains(square, {15, 5}));
    EXPECT_FALSE(polygonContains(square, {-5, 5}));
}

TEST(PolygonContains, AHorizontalEdgeNeverCountsSoThereIsNoDivisionByZero) {
    // A degenerate polygon of horizontal edges only: nothing is inside and nothing divides.
    const std::vector<Point> flat{{0, 5}, {10, 5}, {20, 5}};
    EXPECT_FALSE(polygonContains(flat, {-1, 5}));
    EXPECT_FALSE(polygonContains(flat, {5, 5}));
    // A point level with a square's bottom edge and left of it: only the vertical edges decide.
    const std::vector<Point> square{{0, 0}, {10, 0}, {10, 10}, {0, 10}};
    EXPECT_FALSE(polygonContains(square, {-3, 0}));
}

TEST(PolygonContains, MinEdgesAreInsideAndMaxEdgesOutside) {
    const std::vector<Point> square{{0, 0}, {10, 0}, {10, 10}, {0, 10}};
    EXPECT_TRUE(polygonContains(square, {0, 0}));
    EXPECT_FALSE(polygonContains(square, {10, 5}));
    EXPECT_FALSE(polygonContains(square, {5, 10}));
}

TEST(PolygonContains, SelfOverlappingLoopsFollowTheEvenOddRule) {
    // The same square traced twice: every inside point is crossed twice, so it is outside.
    const std::vector<Point> twice{{0, 0}, {10, 0}, {10, 10}, {0, 10},
                                   {0, 0}, {10, 0}, {10, 10}, {0, 10}};
    EXPECT_FALSE(polygonContains(twice, {5, 5}));
}

// An independent test: the winding number (Sunday's algorithm) is odd exactly where the
// even-odd rule says inside, for any polygon, points on edges aside.
double isLeft(Point a, Point b, Point p) {
    return (b.x - a.x) * (p.y - a.y) - (p.x - a.x) * (b.y - a.y);
}

int windingNumber(const std::vector<Point>& polygon, Point p) {
    int winding = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Point a = polygon[i];
        const Point b = polygon[(i + 1) % polygon.size()];
        if (a.y <= p.y) {
            if (b.y > p.y && isLeft(a, b, p) > 0) ++winding;
        } else if (b.y <= p.y && isLeft(a, b, p) < 0) {
            --winding;
        }
    }
    return winding;
}

double distanceToSegment(Point p, Point a, Point b) {
    const double dx = b.x - a.x, dy = b.y - a.y;
    const double lengthSquared = dx * dx + dy * dy;
    double t = lengthSquared == 0 ? 0 : ((p.x - a.x) * dx + (p.y - a.y) * dy) / lengthSquared;
    t = std::clamp(t, 0.0, 1.0);
    return std::hypot(p.x - (a.x + t * dx), p.y - (a.y + t * dy));
}

// Points this close to an edge, or level with a vertex, may fall either way.
bool isAmbiguous(const std::vector<Point>& polygon, Point p) {
    constexpr double margin = 1e-6;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        if (distanceToSegment(p, polygon[i], polygon[(i + 1) % polygon.size()]) < margin)
            return true;
        if (std::abs(polygon[i].y - p.y) < margin) return true;
    }
    return false;
}

constexpr int randomCases = 5000;

TEST(PolygonContainsProperty, AgreesWithTheParityOfTheWindingNumberOnRandomPolygons) {
    std::mt19937 random(20240607);
    std::uniform_real_distribution<double> coordinate(-100, 100);
    std::uniform_int_distribution<int> vertexCount(3, 9);
    int compared = 0;
    for (int n = 0; n < randomCases; ++n) {
        std::vector<Point> polygon(static_cast<std::size_t>(vertexCount(random)));
        for (Point& vertex : polygon)
            vertex = {coordinate(random), coordinate(random)};
        for (int k = 0; k < 10; ++k) {
            const Point p{coordinate(random), coordinate(random)};
            if (isAmbiguous(polygon, p)) continue;
            ++compared;
            ASSERT_EQ(polygonContains(polygon, p), windingNumber(polygon, p) % 2 != 0)
                << "case " << n << " point (" << p.x << ", " << p.y << ")";
        }
    }
    EXPECT_GT(compared, randomCases * 9);
}

TEST(PolygonContainsProperty, AgreesWithRectangleContainmentOnRandomRectangles) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> coordinate(-2000, 2000);
    std::uniform_real_distribution<double> extent(1, 1500);
    for (int n = 0; n < randomCases; ++n) {
        const Rect r{coordinate(random), coordinate(random), extent(random), extent(random)};
        const std::vector<Point> polygon{
            {r.minX(), r.minY()}, {r.maxX(), r.minY()}, {r.maxX(), r.maxY()}, {r.minX(), r.maxY()}};
        const Point p{coordinate(random), coordinate(random)};
        ASSERT_EQ(polygonContains(polygon, p), r.contains(p)) << "case " << n;
    }
}

struct RandomStrip {
    Rect thumb;
    double size;
    std::vector<Button> enabled;
};

RandomStrip randomStrip(std::mt19937& random) {
    std::uniform_real_distribution<double> position(-3000, 3000);
    std::uniform_real_distribution<double> extent(1, 2000);
    std::uniform_real_distribution<double> side(12, 48);
    std::uniform_int_distribution<int> count(1, 5);
    std::uniform_int_distribution<int> raw(0, 2);
    RandomStrip strip{
        {position(random), position(random), extent(random), extent(random)}, side(random), {}};
    const int buttons = count(random);
    for (int i = 0; i < buttons; ++i)
        strip.enabled.push_back(*overlayButtonFromRaw(raw(random)));
    return strip;
}

TEST(OverlayLayoutProperty, TheFirstButtonAlwaysStraddlesTheThumbnailsTopLeftCorner) {
    std::mt19937 random(11);
    for (int n = 0; n < randomCases; ++n) {
        const RandomStrip s = randomStrip(random);
        const auto layout = OverlayLayout::make(s.thumb, s.size, s.enabled, 4);
        ASSERT_FALSE(layout.items.empty());
        const Rect first = layout.items.front().rect;
        const Point corner{s.thumb.minX(), s.thumb.minY()};
        ASSERT_TRUE(first.contains(corner)) << "case " << n;
        // Its centre lies outside the thumbnail, above and to the left.
        ASSERT_LT(first.midX(), corner.x) << "case " << n;
        ASSERT_LT(first.midY(), corner.y) << "case " << n;
    }
}

TEST(OverlayLayoutProperty, TheSafeZoneAlwaysContainsEveryButtonsCentre) {
    std::mt19937 random(12);
    for (int n = 0; n < randomCases; ++n) {
        const RandomStrip s = randomStrip(random);
        const auto layout = OverlayLayout::make(s.thumb, s.size, s.enabled, 4);
        for (const auto& item : layout.items) {
            ASSERT_TRUE(polygonContains(layout.safeZone, item.rect.mid()))
                << "case " << n << " button at " << item.rect.x;
        }
    }
}

TEST(OverlayLayoutProperty, ButtonsAreSquaresInOneRowSpacedBySizePlusGap) {
    std::mt19937 random(13);
    for (int n = 0; n < randomCases; ++n) {
        const RandomStrip s = randomStrip(random);
        const auto layout = OverlayLayout::make(s.thumb, s.size, s.enabled, 4);
        for (std::size_t i = 1; i < layout.items.size(); ++i) {
            const Rect previous = layout.items[i - 1].rect;
            const Rect current = layout.items[i].rect;
            ASSERT_EQ(current.y, previous.y);
            ASSERT_EQ(current.width, s.size);
            ASSERT_EQ(current.height, s.size);
            ASSERT_NEAR(current.x - previous.x, s.size + 4, 1e-9);
        }
    }
}

}  // namespace
}  // namespace vistrel
