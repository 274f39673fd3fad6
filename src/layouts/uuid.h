#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vistrel {

// A universally unique identifier: 16 bytes, written in the canonical hyphenated form
// "E621E1F8-C36C-495A-93FC-0C247A3E6E5F". Made fresh as random version-4 identifiers.
struct UUID {
    std::array<std::uint8_t, 16> bytes{};

    // A new random (version 4, RFC 4122 variant) identifier.
    static UUID random();
    // The 8-4-4-4-12 hexadecimal form in either case; nothing for any other text.
    static std::optional<UUID> parse(std::string_view text);
    // The canonical form, upper case.
    std::string string() const;

    friend bool operator==(const UUID&, const UUID&) = default;
};

}  // namespace vistrel

template <>
struct std::hash<vistrel::UUID> {
    std::size_t operator()(const vistrel::UUID& id) const noexcept {
        return std::hash<std::string_view>{}(
            std::string_view(reinterpret_cast<const char*>(id.bytes.data()), id.bytes.size()));
    }
};
