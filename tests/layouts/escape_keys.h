#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace vistrel::testing {

// The keys posted to leave Mission Control, and what the layouts log when they post twice.
using Keys = std::vector<std::pair<std::uint16_t, bool>>;

inline const Keys escape{{53, true}, {53, false}};
inline const Keys escapeTwice{{53, true}, {53, false}, {53, true}, {53, false}};
inline const std::string stillOpen =
    "layouts: Mission Control still open after Escape, sending it again";

// Steps of virtual time either side of a deadline, well clear of rounding.
inline constexpr double justBefore = 0.01;
inline constexpr double justAfter = 0.02;

}  // namespace vistrel::testing
