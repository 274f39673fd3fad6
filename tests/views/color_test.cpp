#include "platform/color.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

constexpr double channel = 1.0 / 255;

TEST(ColorHex, SixDigitsWithHashGiveOpaqueSRGBComponents) {
    const auto color = Color::fromHex("#EC4640");
    ASSERT_TRUE(color);
    EXPECT_DOUBLE_EQ(color->red, 0xEC * channel);
    EXPECT_DOUBLE_EQ(color->green, 0x46 * channel);
    EXPECT_DOUBLE_EQ(color->blue, 0x40 * channel);
    EXPECT_DOUBLE_EQ(color->alpha, 1.0);
}

TEST(ColorHex, LeadingHashIsOptional) {
    EXPECT_EQ(Color::fromHex("4CC15E"), Color::fromHex("#4CC15E"));
    EXPECT_TRUE(Color::fromHex("4CC15E"));
}

TEST(ColorHex, WhiteSpaceAroundTheTextIsTrimmed) {
    EXPECT_EQ(Color::fromHex("  #f5bf4f\t\n"), Color::fromHex("#F5BF4F"));
    EXPECT_EQ(Color::fromHex(" 98989D "), Color::fromHex("#98989D"));
}

TEST(ColorHex, LowerAndUpperCaseDigitsReadAlike) {
    EXPECT_EQ(Color::fromHex("#abcdef"), Color::fromHex("#ABCDEF"));
}

TEST(ColorHex, FiveOrSevenDigitsAreRejected) {
    EXPECT_FALSE(Color::fromHex("#12345"));
    EXPECT_FALSE(Color::fromHex("#1234567"));
    EXPECT_FALSE(Color::fromHex("12345"));
    EXPECT_FALSE(Color::fromHex("1234567"));
}

TEST(ColorHex, EmptyOrHashOnlyIsRejected) {
    EXPECT_FALSE(Color::fromHex(""));
    EXPECT_FALSE(Color::fromHex("#"));
    EXPECT_FALSE(Color::fromHex("   "));
}

TEST(ColorHex, OnlyOneHashIsDropped) {
    EXPECT_FALSE(Color::fromHex("##12345"));
    EXPECT_FALSE(Color::fromHex("##123456"));
}

TEST(ColorHex, NonHexCharactersAreRejected) {
    EXPECT_FALSE(Color::fromHex("#12345G"));
    EXPECT_FALSE(Color::fromHex("#12 456"));
    EXPECT_FALSE(Color::fromHex("0x1234"));
}

TEST(ColorHex, WhiteSpaceInsideTheDigitsIsNotTrimmed) {
    EXPECT_FALSE(Color::fromHex("# 123456"));
}

// Six characters that an unsigned integer parser accepts: a plus sign and five digits.
TEST(ColorHex, ASignedSixCharacterTextReadsAsTheIntegerParserReadsIt) {
    const auto plus = Color::fromHex("+FFFFF");
    ASSERT_TRUE(plus);
    EXPECT_DOUBLE_EQ(plus->red, 0x0F * channel);
    EXPECT_DOUBLE_EQ(plus->blue, 1.0);
    EXPECT_EQ(Color::fromHex("-00000"), Color::fromHex("000000"));
    EXPECT_FALSE(Color::fromHex("-00001"));
    EXPECT_FALSE(Color::fromHex("+-1234"));
}

TEST(ColorBlend, BlendingTowardsBlackScalesComponentsAndKeepsOpacity) {
    const Color red{1, 0.5, 0, 1};
    const Color darker = red.blended(0.22, Color::black());
    EXPECT_DOUBLE_EQ(darker.red, 0.78);
    EXPECT_DOUBLE_EQ(darker.green, 0.39);
    EXPECT_DOUBLE_EQ(darker.blue, 0);
    EXPECT_DOUBLE_EQ(darker.alpha, 1);
}

TEST(ColorBlend, FractionOutsideZeroToOneIsClamped) {
    const Color red{1, 0, 0, 1};
    EXPECT_EQ(red.blended(-1, Color::white()), red);
    EXPECT_EQ(red.blended(2, Color::white()), Color::white());
}

TEST(ColorBlend, AlphaIsMixedLikeTheComponents) {
    const Color faint = Color::black().withAlpha(0.3);
    EXPECT_DOUBLE_EQ(faint.blended(0.5, Color::white()).alpha, 0.65);
}

TEST(Color, WithAlphaReplacesOnlyTheAlpha) {
    const Color half = Color::white().withAlpha(0.5);
    EXPECT_EQ(half, (Color{1, 1, 1, 0.5}));
}

}  // namespace
}  // namespace vistrel
