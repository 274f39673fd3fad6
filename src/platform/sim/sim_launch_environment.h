#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/launch_environment.h"

namespace vistrel {

// The agent's command line and environment as a test sets them.
class SimLaunchEnvironment : public LaunchEnvironment {
  public:
    std::vector<std::string> arguments() override { return commandLine; }
    std::optional<std::string> variable(const std::string& name) override {
        const auto found = variables.find(name);
        if (found == variables.end()) return std::nullopt;
        return found->second;
    }

    std::vector<std::string> commandLine{"/Applications/Vistrel.app/Contents/MacOS/Vistrel"};
    std::map<std::string, std::string> variables;
};

}  // namespace vistrel
