#include "platform/alpha.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace vistrel {
namespace {

using Pixels = std::vector<std::uint8_t>;

TEST(Alpha, AnOpaquePixelKeepsItsColour) {
    Pixels pixels = {200, 100, 50, 255};
    unpremultiplyPixels(pixels);
    EXPECT_EQ(pixels, (Pixels{200, 100, 50, 255}));
}

TEST(Alpha, AHalfTransparentPixelGetsItsFullColourBack) {
    Pixels pixels = {64, 32, 0, 128};
    unpremultiplyPixels(pixels);
    EXPECT_EQ(pixels, (Pixels{128, 64, 0, 128}));
}

TEST(Alpha, ATransparentPixelComesOutTransparentBlack) {
    Pixels pixels = {10, 20, 30, 0};
    unpremultiplyPixels(pixels);
    EXPECT_EQ(pixels, (Pixels{0, 0, 0, 0}));
}

TEST(Alpha, AChannelAboveItsAlphaSaturates) {
    EXPECT_EQ(unpremultiplied(200, 100), 255);
}

TEST(Alpha, EveryPixelOfARowIsConverted) {
    Pixels pixels = {255, 255, 255, 255, 51, 0, 102, 102};
    unpremultiplyPixels(pixels);
    EXPECT_EQ(pixels, (Pixels{255, 255, 255, 255, 128, 0, 255, 102}));
}

TEST(Alpha, ATrailingPartialPixelIsLeftAlone) {
    Pixels pixels = {10, 10, 10, 20, 7, 7};
    unpremultiplyPixels(pixels);
    EXPECT_EQ(pixels, (Pixels{128, 128, 128, 20, 7, 7}));
}

TEST(Alpha, PremultiplyingAndBackRoundsToTheSameColourWhenAlphaIsHigh) {
    for (int channel = 0; channel <= 255; ++channel) {
        const auto c = static_cast<std::uint8_t>(channel);
        EXPECT_NEAR(unpremultiplied(premultiplied(c, 250), 250), c, 1) << channel;
    }
}

}  // namespace
}  // namespace vistrel
