#pragma once

#include <cstdint>

namespace vistrel {

// A process identifier (pid_t on macOS).
using Pid = std::int32_t;

}  // namespace vistrel
