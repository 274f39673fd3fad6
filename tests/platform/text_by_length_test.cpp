#include "base/text_by_length.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace vistrel {
namespace {

using namespace std::string_literals;

// A string of the system as CFStringGetBytes sees it: characters, each with its UTF-8 bytes,
// the first `convertible` of them convertible. Records every call it answers.
struct SystemString {
    std::vector<std::string> characters;
    std::size_t convertible = ~std::size_t{0};
    int calls = 0;

    long length() const { return static_cast<long>(characters.size()); }

    long operator()(std::uint8_t* buffer, long capacity, long& used) {
        ++calls;
        used = 0;
        long converted = 0;
        for (std::size_t i = 0; i < characters.size() && i < convertible; ++i) {
            const std::string& bytes = characters[i];
            if (buffer != nullptr) {
                if (used + static_cast<long>(bytes.size()) > capacity) break;
                std::copy(bytes.begin(), bytes.end(), buffer + used);
            }
            used += static_cast<long>(bytes.size());
            ++converted;
        }
        return converted;
    }
};

std::optional<std::string> textOf(SystemString& string) {
    return textByLength(string.length(), string);
}

TEST(TextByLength, AnEmbeddedNulIsKeptWithWhatFollowsIt) {
    SystemString string{{"a", "p", "p", "l", "y", "\0"s, "x"}};
    EXPECT_EQ(textOf(string), "apply\0x"s);
    EXPECT_EQ(textOf(string)->size(), 7u);
}

TEST(TextByLength, CharactersOfSeveralBytesAreConvertedWhole) {
    SystemString string{{"R", "\xC3\xA9", "s", "u", "m", "\xC3\xA9", " ", "\xF0\x9F\x93\x84"}};
    EXPECT_EQ(textOf(string), "R\xC3\xA9sum\xC3\xA9 \xF0\x9F\x93\x84");
}

TEST(TextByLength, ACharacterThatCannotBeConvertedMakesTheTextAbsentNotShorter) {
    SystemString string{{"N", "o", "t", "e", "s"}, 3};
    EXPECT_EQ(textOf(string), std::nullopt);
    SystemString none{{"x"}, 0};
    EXPECT_EQ(textOf(none), std::nullopt);
}

TEST(TextByLength, AStringThatGrewBetweenMeasuringAndConvertingIsAbsent) {
    SystemString string{{"a", "b"}};
    auto growing = [&string](std::uint8_t* buffer, long capacity, long& used) {
        if (buffer != nullptr) string.characters = {"\xC3\xA9", "\xC3\xA9"};
        return string(buffer, capacity, used);
    };
    EXPECT_EQ(textByLength(string.length(), growing), std::nullopt);
}

TEST(TextByLength, TheEmptyStringIsEmptyTextWithoutAsking) {
    SystemString string{};
    EXPECT_EQ(textOf(string), "");
    EXPECT_EQ(string.calls, 0);
    EXPECT_EQ(textByLength(-1, string), std::nullopt);
}

}  // namespace
}  // namespace vistrel
