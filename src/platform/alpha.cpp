#include "platform/alpha.h"

#include <algorithm>

namespace vistrel {

namespace {
constexpr double channelMax = 255;
constexpr std::size_t channelsPerPixel = 4;
constexpr std::size_t alphaIndex = 3;
}  // namespace

std::uint8_t premultiplied(std::uint8_t channel, std::uint8_t alpha) {
    return static_cast<std::uint8_t>(channel * alpha / channelMax + 0.5);
}

std::uint8_t unpremultiplied(std::uint8_t channel, std::uint8_t alpha) {
    if (alpha == 0) return 0;
    // A channel above its alpha is not valid premultiplied colour; it saturates.
    return static_cast<std::uint8_t>(std::min(channelMax, channel * channelMax / alpha + 0.5));
}

void unpremultiplyPixels(std::span<std::uint8_t> rgba) {
    const std::size_t whole = rgba.size() - rgba.size() % channelsPerPixel;
    for (std::size_t i = 0; i < whole; i += channelsPerPixel) {
        const std::uint8_t alpha = rgba[i + alphaIndex];
        for (std::size_t c = 0; c < alphaIndex; ++c)
            rgba[i + c] = unpremultiplied(rgba[i + c], alpha);
    }
}

}  // namespace vistrel
