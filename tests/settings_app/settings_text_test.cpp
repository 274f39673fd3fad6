#include "settings_app/settings_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/sim_test.h"

namespace vistrel {
namespace {

class SettingsTextTest : public testing::SimTest {
  protected:
    TextRun run(std::string text) { return {std::move(text), Font::system(13), Color::black()}; }
    double width(const std::string& text) { return SettingsText::width(run(text)); }
};

TEST_F(SettingsTextTest, TextThatFitsIsOneLineAsItIs) {
    EXPECT_EQ(SettingsText::lines(run("Open Vistrel at login"), 400, 3),
              (std::vector<std::string>{"Open Vistrel at login"}));
}

TEST_F(SettingsTextTest, LongTextBreaksAtSpacesIntoLinesThatFit) {
    const std::string text = "Save window arrangements and restore them from the shelf";
    const double maxWidth = width("Save window arrangements") + 1;
    const auto lines = SettingsText::lines(run(text), maxWidth, 5);
    ASSERT_GE(lines.size(), 2u);
    EXPECT_EQ(lines.front(), "Save window arrangements");
    std::string joined;
    for (const std::string& line : lines) {
        EXPECT_LE(width(line), maxWidth) << line;
        joined += (joined.empty() ? "" : " ") + line;
    }
    EXPECT_EQ(joined, text);
}

TEST_F(SettingsTextTest, TextBeyondTheLastLineEndsItWithAnEllipsis) {
    const auto lines = SettingsText::lines(run("one two three four five six"), width("one two"), 2);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines.back().substr(lines.back().size() - 3), "…");
    EXPECT_LE(width(lines.back()), width("one two"));
}

TEST_F(SettingsTextTest, CuttingNeverSplitsACharacter) {
    const std::string fitted = SettingsText::fitted(run("Café Café Café Café"), width("Café Ca"));
    EXPECT_EQ(fitted.substr(fitted.size() - 3), "…");
    const std::string kept = fitted.substr(0, fitted.size() - 3);
    EXPECT_EQ(std::string("Café Café Café Café").rfind(kept, 0), 0u);
    EXPECT_NE(static_cast<unsigned char>(kept.back()) & 0xC0, 0x80) << "ends inside é";
}

}  // namespace
}  // namespace vistrel
