#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "fuzz/thumbnail_tree_fuzz.h"

namespace vistrel {
namespace {

TEST(ThumbnailTreeFuzzRegression, ArbitraryTreesKeepThePromise) {
    // A fixed stream of bytes from a linear congruential generator, cut into inputs.
    std::uint32_t state = 7;
    constexpr int inputs = 400;
    constexpr std::size_t bytesEach = 400;
    for (int i = 0; i < inputs; ++i) {
        std::string bytes;
        for (std::size_t b = 0; b < bytesEach; ++b) {
            state = state * 1664525u + 1013904223u;
            bytes.push_back(static_cast<char>(state >> 24));
        }
        ASSERT_TRUE(fuzz::readingKeepsItsPromise(bytes)) << "input " << i;
    }
}

}  // namespace
}  // namespace vistrel
