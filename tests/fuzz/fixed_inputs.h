#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace vistrel::fuzz {

// A fixed stream of bytes from a linear congruential generator, cut into `count` inputs of
// `bytesEach` bytes: what a regression test feeds a fuzz target's promise on every run.
inline std::vector<std::string> fixedInputs(std::uint32_t seed, int count, std::size_t bytesEach) {
    std::uint32_t state = seed;
    std::vector<std::string> inputs;
    for (int i = 0; i < count; ++i) {
        std::string bytes;
        for (std::size_t b = 0; b < bytesEach; ++b) {
            state = state * 1664525u + 1013904223u;
            bytes.push_back(static_cast<char>(state >> 24));
        }
        inputs.push_back(std::move(bytes));
    }
    return inputs;
}

}  // namespace vistrel::fuzz
