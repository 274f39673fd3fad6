#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "fuzz/thumbnail_tree_fuzz.h"

// libFuzzer's entry point: any bytes as a desktop and its Mission Control tree.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (!vistrel::fuzz::readingKeepsItsPromise(bytes)) std::abort();
    return 0;
}
