#pragma once

#include "platform/agent_application.h"

namespace vistrel {

// NSApplication.shared.
class MacAgentApplication : public AgentApplication {
  public:
    void activate() override;
    void terminate() override;
    void keepTimersOnTime(std::string_view reason) override;
};

}  // namespace vistrel
