#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vistrel {

// A colour in the sRGB colour space, components and alpha from 0 to 1 (not premultiplied).
// The agent's drawing code speaks only in these; the platform turns them into its own colour
// objects when a display list is replayed.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    // Six hexadecimal digits, "RRGGBB", opaque. White space around the text and one leading
    // "#" are ignored; the digits must read as an unsigned 32-bit number in base 16, the way
    // an integer parser with radix 16 reads them. Anything else gives nothing.
    static std::optional<Color> fromHex(std::string_view text);

    // An opaque colour from 0xRRGGBB.
    static constexpr Color fromRGB(std::uint32_t rgb) {
        constexpr double channelMax = 255;
        return {((rgb >> 16) & 0xFF) / channelMax, ((rgb >> 8) & 0xFF) / channelMax,
                (rgb & 0xFF) / channelMax, 1};
    }
    static constexpr Color white() { return {1, 1, 1, 1}; }
    static constexpr Color black() { return {0, 0, 0, 1}; }
    static constexpr Color clear() { return {0, 0, 0, 0}; }
    // The system's gray in the light appearance (#8E8E93): the stand-in for a colour that
    // could not be made.
    static constexpr Color systemGray() { return {142.0 / 255, 142.0 / 255, 147.0 / 255, 1}; }

    // The same colour with its alpha replaced.
    constexpr Color withAlpha(double newAlpha) const { return {red, green, blue, newAlpha}; }

    // The colour moved towards `target` by `fraction` (0 keeps it, 1 gives the target), each
    // component and alpha mixed linearly. In sRGB this cannot fail, unlike AppKit's
    // colour-space conversion, so callers need no fallback.
    Color blended(double fraction, Color target) const;

    friend bool operator==(const Color&, const Color&) = default;
};

}  // namespace vistrel
