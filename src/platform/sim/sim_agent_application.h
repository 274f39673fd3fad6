#pragma once

#include "platform/agent_application.h"

namespace vistrel {

// The agent's application object on the simulated desktop: it counts activations and
// remembers being asked to quit.
class SimAgentApplication : public AgentApplication {
  public:
    void activate() override { ++activations; }
    void terminate() override { terminated = true; }

    int activations = 0;
    bool terminated = false;
};

}  // namespace vistrel
