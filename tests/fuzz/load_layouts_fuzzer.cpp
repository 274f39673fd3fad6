#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "fuzz/load_layouts_fuzz.h"

// libFuzzer's entry point: any bytes as the text stored under "layouts.saved".
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    if (!vistrel::fuzz::loadingKeepsItsPromise(text)) std::abort();
    return 0;
}
