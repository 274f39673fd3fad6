#pragma once

#include "platform/script_runner.h"

namespace vistrel {

// osascript in a child process, waited for with a semaphore its termination handler signals.
class MacScriptRunner : public ScriptRunner {
  public:
    std::optional<std::string> run(const std::string& script, double timeout) override;
};

}  // namespace vistrel
