#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vistrel {

// ProcessInfo.processInfo: the agent's own command line and environment.
class LaunchEnvironment {
  public:
    virtual ~LaunchEnvironment() = default;
    // ProcessInfo.arguments: the program's path first, then its arguments.
    virtual std::vector<std::string> arguments() = 0;
    // ProcessInfo.environment[name]; nothing when the variable is not set.
    virtual std::optional<std::string> variable(const std::string& name) = 0;
};

}  // namespace vistrel
