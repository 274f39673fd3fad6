#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "fuzz/fixed_inputs.h"
#include "fuzz/thumbnail_tree_fuzz.h"

namespace vistrel {
namespace {

TEST(ThumbnailTreeFuzzRegression, ArbitraryTreesKeepThePromise) {
    constexpr int inputs = 400;
    constexpr std::size_t bytesEach = 400;
    int i = 0;
    for (const std::string& bytes : fuzz::fixedInputs(7, inputs, bytesEach)) {
        ASSERT_TRUE(fuzz::readingKeepsItsPromise(bytes)) << "input " << i++;
    }
}

}  // namespace
}  // namespace vistrel
