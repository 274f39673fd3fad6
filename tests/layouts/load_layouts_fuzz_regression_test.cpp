#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fuzz/load_layouts_fuzz.h"

namespace vistrel {
namespace {

std::string repeated(std::string_view piece, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) {
        text += piece;
    }
    return text;
}

// "[", then `element` the given number of times, then `last` and "]".
std::string listOf(std::string_view element, int times, std::string_view last) {
    std::string text = "[";
    text += repeated(element, times);
    text += last;
    text += ']';
    return text;
}

// Inputs that have broken JSON readers before: deep nesting, numbers out of range, broken
// UTF-8 and escapes, embedded NULs.
std::vector<std::string> unreadableInputs() {
    using namespace std::string_literals;
    return {
        "",
        "\0"s,
        "[\0]"s,
        repeated("[", 100'000),
        repeated("[{\"windows\":", 20'000),
        "\xFF\xFE[]",
        "[\"\xC3\"]",
        R"([{"name":"\ud800","windows":[]}])",
        R"([{"created":1e400,"windows":[]}])",
        R"([{"created":-1e400,"windows":[]}])",
        R"([{"created":NaN,"windows":[]}])",
        R"([{"created":Infinity,"windows":[]}])",
        "[{\"name\":\"tab\there\",\"windows\":[]}]",
        R"([{"windows":[{"app":"A","bundleID":"b","title":"","rect":{"h":1,"w":1,"x":0,"y":1e999}}]}])",
        listOf(R"({"windows":[]},)", 10'000, "")};
}

// Inputs that are readable and must come back unchanged from their own encoding.
std::vector<std::string> readableInputs() {
    return {
        "[]",
        "\xEF\xBB\xBF[]",
        R"([{"created":1e-400,"windows":[]}])",
        R"([{"created":18446744073709551615,"windows":[]}])",
        R"([{"created":-0.0,"name":"","windows":[]}])",
        R"([{"name":"a","name":"b","windows":[],"windows":[]}])",
        R"([{"name":"\u0000\u001f\"\\\/","windows":[]}])",
        R"([{"id":"e621e1f8-c36c-495a-93fc-0c247a3e6e5f","windows":[{"app":"\ud83d\ude00",)"
        R"("bundleID":"","display":null,"title":"","rect":{"h":1e308,"w":-1e308,"x":5e-324,"y":0}}]}])",
        listOf(R"({"windows":[]},)", 10'000, R"({"windows":[]})")};
}

TEST(LoadLayoutsFuzzRegression, UnreadableInputsYieldNothingWithoutCrashing) {
    for (const auto& input : unreadableInputs()) {
        EXPECT_FALSE(SavedLayoutJSON::decode(input, 0)) << input.substr(0, 80);
        EXPECT_TRUE(fuzz::loadingKeepsItsPromise(input)) << input.substr(0, 80);
    }
}

TEST(LoadLayoutsFuzzRegression, ReadableInputsEncodeAgainAndReadBackUnchanged) {
    for (const auto& input : readableInputs()) {
        EXPECT_TRUE(SavedLayoutJSON::decode(input, 0)) << input.substr(0, 80);
        EXPECT_TRUE(fuzz::loadingKeepsItsPromise(input)) << input.substr(0, 80);
    }
}

}  // namespace
}  // namespace vistrel
