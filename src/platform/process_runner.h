#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vistrel {

// Process (NSTask): starts a program and does not wait for it.
class ProcessRunner {
  public:
    virtual ~ProcessRunner() = default;
    // Process.run() with executableURL and arguments: nothing once it has started, else the
    // error's localized description.
    virtual std::optional<std::string> start(const std::string& executable,
                                             const std::vector<std::string>& arguments) = 0;
};

}  // namespace vistrel
