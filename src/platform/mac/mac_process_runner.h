#pragma once

#include "platform/process_runner.h"

namespace vistrel {

// Process (NSTask), started and left to run.
class MacProcessRunner : public ProcessRunner {
  public:
    std::optional<std::string> start(const std::string& executable,
                                     const std::vector<std::string>& arguments) override;
};

}  // namespace vistrel
