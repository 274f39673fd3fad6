#pragma once

#include "platform/launch_environment.h"

namespace vistrel {

// ProcessInfo.processInfo.
class MacLaunchEnvironment : public LaunchEnvironment {
  public:
    std::vector<std::string> arguments() override;
    std::optional<std::string> variable(const std::string& name) override;
};

}  // namespace vistrel
