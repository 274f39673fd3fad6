#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace vistrel {

// A system string as UTF-8 text, converted by its length and never read up to a NUL, so
// that "applySettings\0x" stays nine characters longer than "applySettings". It is the way
// Core Foundation's CFStringGetBytes converts, asked twice: `convert(buffer, capacity, used)`
// converts the string's `length` characters into `buffer` (given no buffer, it only measures
// them), sets `used` to the bytes written (or needed), and answers how many characters it
// converted, stopping at the first it cannot. Nothing unless every character converted both
// times within the measured bytes: a failed conversion reads as absent, never as a shorter
// text.
template <typename Convert>
std::optional<std::string> textByLength(long length, Convert&& convert) {
    if (length < 0) return std::nullopt;
    if (length == 0) return std::string();
    long needed = 0;
    if (convert(static_cast<std::uint8_t*>(nullptr), 0L, needed) != length || needed <= 0) {
        return std::nullopt;
    }
    std::string text(static_cast<std::size_t>(needed), '\0');
    long used = 0;
    if (convert(reinterpret_cast<std::uint8_t*>(text.data()), needed, used) != length || used < 0 ||
        used > needed) {
        return std::nullopt;
    }
    text.resize(static_cast<std::size_t>(used));
    return text;
}

}  // namespace vistrel
