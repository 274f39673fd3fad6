#include <gtest/gtest.h>

#include "support/sim_test.h"
#include "ui/kit/dfkit_key_text.h"
#include "ui/kit/dfkit_text.h"

namespace vistrel::testing {
namespace {

using DFKitTextTest = SimTest;

DFKitText body(std::string text) {
    return {std::move(text), Font::system(13), DFKit::ink};
}

TEST_F(DFKitTextTest, WrapsAtSpacesWithinTheWidth) {
    const DFKitText text =
        body("Hover a window for its buttons. The shortcuts act on that window.");
    const double width = 150;
    const auto lines = text.wrapped(width);
    ASSERT_GT(lines.size(), 1u);
    std::string joined;
    for (const auto& line : lines) {
        EXPECT_LE(body(line).measure().width, width) << line;
        joined += (joined.empty() ? "" : " ") + line;
    }
    EXPECT_EQ(joined, text.string);
}

TEST_F(DFKitTextTest, AWordLongerThanTheWidthStandsOnItsOwnLine) {
    EXPECT_EQ(body("a extraordinarily b").wrapped(20),
              (std::vector<std::string>{"a", "extraordinarily", "b"}));
}

TEST_F(DFKitTextTest, FittingKeepsTextThatFitsAndCutsTheRestWithAnEllipsis) {
    EXPECT_EQ(body("Grid").fitted(200).string, "Grid");
    const DFKitText cut = body("Everything at once, side by side on the big screen").fitted(120);
    EXPECT_LE(cut.measure().width, 120);
    EXPECT_TRUE(cut.string.ends_with("…"));
    EXPECT_TRUE(std::string("Everything at once").starts_with(cut.string.substr(0, 5)));
}

TEST_F(DFKitTextTest, FittingNeverSplitsACharacter) {
    const std::string original = "éééééééééééééééééééééééééé";
    const DFKitText cut = body(original).fitted(60);
    // What is kept is a prefix of the text that ends where a character ends.
    const std::string kept = cut.string.substr(0, cut.string.size() - std::string("…").size());
    ASSERT_FALSE(kept.empty());
    ASSERT_TRUE(original.starts_with(kept));
    EXPECT_NE(static_cast<unsigned char>(original[kept.size()]) & 0xC0, 0x80u);
}

TEST_F(DFKitTextTest, KeyTextDrawsModifiersAsLinesAndLettersAsText) {
    const DFKitKeyText keys("⌥⌘W", Font::system(12, FontWeight::semibold), DFKit::ink);
    RecordingCanvas canvas(true);
    keys.draw(canvas, Appearance::light, 0, 10);
    const auto list = canvas.finish();
    EXPECT_EQ(list->all<DisplayList::Stroke>().size(), 2u);
    const auto texts = list->all<DisplayList::Text>();
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].run.text, "W");
    EXPECT_GT(keys.width(), body("W").measure().width);
}

}  // namespace
}  // namespace vistrel::testing
