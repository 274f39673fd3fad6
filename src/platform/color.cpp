#include "platform/color.h"

#include <algorithm>
#include <cstdint>

namespace vistrel {

namespace {

constexpr std::size_t hexDigits = 6;
constexpr double componentMax = 255.0;
constexpr std::string_view whiteSpace = " \t\n\r\v\f";

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(whiteSpace);
    if (first == std::string_view::npos) return {};
    const auto last = text.find_last_not_of(whiteSpace);
    return text.substr(first, last - first + 1);
}

std::optional<unsigned> hexDigitValue(char c) {
    if (c >= '0' && c <= '9') return static_cast<unsigned>(c - '0');
    if (c >= 'a' && c <= 'f') return static_cast<unsigned>(c - 'a' + 10);
    if (c >= 'A' && c <= 'F') return static_cast<unsigned>(c - 'A' + 10);
    return std::nullopt;
}

// Reads text the way an unsigned 32-bit integer parser with radix 16 does: an optional sign,
// then at least one digit and nothing else. A minus sign is accepted only before zero, the one
// value an unsigned number can be negated to.
std::optional<std::uint32_t> parseUnsignedHex(std::string_view text) {
    bool negative = false;
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    if (text.empty()) return std::nullopt;
    std::uint64_t value = 0;
    for (char c : text) {
        const auto digit = hexDigitValue(c);
        if (!digit) return std::nullopt;
        value = value * 16 + *digit;
        if (value > UINT32_MAX) return std::nullopt;
    }
    if (negative && value != 0) return std::nullopt;
    return static_cast<std::uint32_t>(value);
}

double component(std::uint32_t value, int shift) {
    constexpr std::uint32_t byteMask = 0xFF;
    return static_cast<double>((value >> shift) & byteMask) / componentMax;
}

double mix(double from, double to, double fraction) {
    return from + (to - from) * fraction;
}

}  // namespace

std::optional<Color> Color::fromHex(std::string_view text) {
    std::string_view digits = trimmed(text);
    if (!digits.empty() && digits.front() == '#') digits.remove_prefix(1);
    if (digits.size() != hexDigits) return std::nullopt;
    const auto value = parseUnsignedHex(digits);
    if (!value) return std::nullopt;
    constexpr int redShift = 16;
    constexpr int greenShift = 8;
    return Color{component(*value, redShift), component(*value, greenShift), component(*value, 0),
                 1.0};
}

Color Color::blended(double fraction, Color target) const {
    const double f = std::clamp(fraction, 0.0, 1.0);
    return {mix(red, target.red, f), mix(green, target.green, f), mix(blue, target.blue, f),
            mix(alpha, target.alpha, f)};
}

}  // namespace vistrel
