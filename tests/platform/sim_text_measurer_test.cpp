#include <gtest/gtest.h>

#include <string>

#include "platform/sim/sim_desktop.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

constexpr double bodySize = 13;

class SimTextMeasurerTest : public testing::SimTest {
  protected:
    TextMetrics measure(const std::string& text, double size = bodySize) {
        return desktop.platform().text.measure({text, Font::system(size), Color::white()});
    }
};

TEST_F(SimTextMeasurerTest, LongerTextMeasuresWider) {
    EXPECT_GT(measure("Safari · Mail · Notes").width, measure("Safari").width);
    EXPECT_GT(measure("Safari").width, 0);
}

TEST_F(SimTextMeasurerTest, TheSameTextIsWiderAndTallerInALargerFont) {
    const TextMetrics body = measure("Layouts");
    const TextMetrics title = measure("Layouts", 2 * bodySize);

    EXPECT_GT(title.width, body.width);
    EXPECT_GT(title.height(), body.height());
}

TEST_F(SimTextMeasurerTest, AscentAndDescentArePositive) {
    const TextMetrics metrics = measure("Left half");

    EXPECT_GT(metrics.ascent, 0);
    EXPECT_GT(metrics.descent, 0);
}

TEST_F(SimTextMeasurerTest, EmptyTextHasNoWidthButStillALineHeight) {
    const TextMetrics metrics = measure("");

    EXPECT_EQ(metrics.width, 0);
    EXPECT_GT(metrics.height(), 0);
}

TEST_F(SimTextMeasurerTest, LetterSpacingWidensTheText) {
    TextRun spaced{"Halves", Font::system(bodySize), Color::white()};
    spaced.kern = 2;

    EXPECT_GT(desktop.platform().text.measure(spaced).width, measure("Halves").width);
}

}  // namespace
}  // namespace vistrel
