#include "views/shelf_text.h"

#include <gtest/gtest.h>

#include <string>

#include "support/sim_test.h"
#include "views/shelf_style.h"

namespace vistrel {
namespace {

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
