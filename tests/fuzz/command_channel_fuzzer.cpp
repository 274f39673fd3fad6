#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "fuzz/command_fuzz.h"

// libFuzzer's entry point: any bytes as the user info of a command notification.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto userInfo = vistrel::fuzz::UserInfoReader(bytes).userInfo();
    if (!vistrel::fuzz::dispatchKeepsItsPromise(userInfo)) std::abort();
    return 0;
}
