#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/process_runner.h"

namespace vistrel {

// Programs the agent started, recorded instead of run; starting can fail on purpose.
class SimProcessRunner : public ProcessRunner {
  public:
    std::optional<std::string> start(const std::string& executable,
                                     const std::vector<std::string>& arguments) override {
        if (failure) return failure;
        started.emplace_back(executable, arguments);
        return std::nullopt;
    }

    std::vector<std::pair<std::string, std::vector<std::string>>> started;
    // When set, every start fails with this description.
    std::optional<std::string> failure;
};

}  // namespace vistrel
