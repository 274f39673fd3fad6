#include "views/shelf_glyphs.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vistrel {
namespace {

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

}  // namespace
}  // namespace vistrel
