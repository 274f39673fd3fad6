#pragma once

#include <string_view>

#include "layouts/saved_layout_json.h"

namespace vistrel::fuzz {

// What reading saved layouts promises for any stored text: it either yields nothing (the
// store then shows the empty list) or layouts that encode again and read back unchanged.
// The fuzzer aborts when this returns false; the regression test asserts it.
inline bool loadingKeepsItsPromise(std::string_view text) {
    constexpr double now = 0;
    const auto layouts = SavedLayoutJSON::decode(text, now);
    if (!layouts) return true;
    const auto encoded = SavedLayoutJSON::encode(*layouts);
    if (!encoded) return false;
    const auto reread = SavedLayoutJSON::decode(*encoded, now);
    return reread && *reread == *layouts;
}

}  // namespace vistrel::fuzz
