#include "layouts/uuid.h"

#include <random>

namespace vistrel {

namespace {

constexpr std::size_t textLength = 36;
constexpr std::array<std::size_t, 4> hyphenPositions{8, 13, 18, 23};
constexpr char upperDigits[] = "0123456789ABCDEF";

// Version 4 in the high nibble of byte 6, variant 0b10 in the high bits of byte 8.
constexpr std::size_t versionByte = 6;
constexpr std::uint8_t versionMask = 0x0F;
constexpr std::uint8_t version4 = 0x40;
constexpr std::size_t variantByte = 8;
constexpr std::uint8_t variantMask = 0x3F;
constexpr std::uint8_t variantRFC4122 = 0x80;

bool isHyphenPosition(std::size_t index) {
    for (std::size_t position : hyphenPositions) {
        if (position == index) return true;
    }
    return false;
}

std::optional<std::uint8_t> hexValue(char c) {
    if (c >= '0' && c <= '9') return static_cast<std::uint8_t>(c - '0');
    if (c >= 'a' && c <= 'f') return static_cast<std::uint8_t>(c - 'a' + 10);
    if (c >= 'A' && c <= 'F') return static_cast<std::uint8_t>(c - 'A' + 10);
    return std::nullopt;
}

std::mt19937_64& generator() {
    // One generator per thread, seeded from the system's entropy source.
    thread_local std::mt19937_64 engine{[] {
        std::random_device device;
        std::seed_seq seed{device(), device(), device(), device()};
        return std::mt19937_64(seed);
    }()};
    return engine;
}

}  // namespace

UUID UUID::random() {
    UUID id;
    std::uniform_int_distribution<unsigned> byte(0, 0xFF);
    for (auto& b : id.bytes)
        b = static_cast<std::uint8_t>(byte(generator()));
    id.bytes[versionByte] = (id.bytes[versionByte] & versionMask) | version4;
    id.bytes[variantByte] = (id.bytes[variantByte] & variantMask) | variantRFC4122;
    return id;
}

std::optional<UUID> UUID::parse(std::string_view text) {
    if (text.size() != textLength) return std::nullopt;
    UUID id;
    std::size_t nibble = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isHyphenPosition(i)) {
            if (text[i] != '-') return std::nullopt;
            continue;
        }
        auto value = hexValue(text[i]);
        if (!value) return std::nullopt;
        auto& b = id.bytes[nibble / 2];
        b = static_cast<std::uint8_t>(nibble % 2 == 0 ? *value << 4 : b | *value);
        ++nibble;
    }
    return id;
}

std::string UUID::string() const {
    std::string text;
    text.reserve(textLength);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (isHyphenPosition(text.size())) text += '-';
        text += upperDigits[bytes[i] >> 4];
        text += upperDigits[bytes[i] & 0x0F];
    }
    return text;
}

}  // namespace vistrel
