#pragma once

#include <cstdint>
#include <span>

namespace vistrel {

// 8-bit colour channels between premultiplied alpha (what Core Graphics and Cairo draw into)
// and straight alpha (what an Image holds). A transparent pixel has no colour left to
// recover and comes out black.
std::uint8_t premultiplied(std::uint8_t channel, std::uint8_t alpha);
std::uint8_t unpremultiplied(std::uint8_t channel, std::uint8_t alpha);

// Turns premultiplied red, green, blue, alpha pixels into straight ones in place; a trailing
// partial pixel is left alone.
void unpremultiplyPixels(std::span<std::uint8_t> rgba);

}  // namespace vistrel
