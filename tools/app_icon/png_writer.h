#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vistrel {

// Writes a PNG file's bytes (8-bit RGBA, not interlaced, no row filter) from rows of pixels,
// the image data deflated by zlib.
struct PngWriter {
    // `rgba` holds `size` rows of `size` pixels, four bytes each; nothing when zlib fails.
    static std::string encode(int size, const std::vector<std::uint8_t>& rgba);
};

}  // namespace vistrel
