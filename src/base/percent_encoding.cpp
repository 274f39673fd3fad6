#include "base/percent_encoding.h"

namespace vistrel {

namespace {

constexpr int hexBase = 16;
constexpr int hexLetterValue = 10;
constexpr std::string_view hexDigits = "0123456789ABCDEF";
constexpr std::string_view unreservedMarks = "-._~";

std::optional<int> hexValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + hexLetterValue;
    if (c >= 'A' && c <= 'F') return c - 'A' + hexLetterValue;
    return std::nullopt;
}

bool unreserved(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           unreservedMarks.find(c) != std::string_view::npos;
}

}  // namespace

std::optional<std::string> PercentEncoding::decoded(std::string_view text, bool plusIsSpace) {
    std::string decoded;
    decoded.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (plusIsSpace && text[i] == '+') {
            decoded += ' ';
        } else if (text[i] != '%') {
            decoded += text[i];
        } else {
            const auto high = i + 1 < text.size() ? hexValue(text[i + 1]) : std::nullopt;
            const auto low = i + 2 < text.size() ? hexValue(text[i + 2]) : std::nullopt;
            if (!high || !low) return std::nullopt;
            decoded += static_cast<char>(*high * hexBase + *low);
            i += 2;
        }
    }
    return decoded;
}

std::string PercentEncoding::encoded(std::string_view text, std::string_view keep) {
    std::string encoded;
    encoded.reserve(text.size());
    for (const char c : text) {
        if (unreserved(c) || keep.find(c) != std::string_view::npos) {
            encoded += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        encoded += '%';
        encoded += hexDigits[byte / hexBase];
        encoded += hexDigits[byte % hexBase];
    }
    return encoded;
}

}  // namespace vistrel
