#pragma once

#include "platform/agent_application.h"

namespace vistrel {

// The agent's application object on the simulated desktop: it counts activations and
// remembers being asked to quit.
class SimAgentApplication : public AgentApplication {
  public:
    void activate() override { ++activations_; }
    void terminate() override { terminated_ = true; }

    int activations() const { return activations_; }
    bool terminated() const { return terminated_; }

  private:
    int activations_ = 0;
    bool terminated_ = false;
};

}  // namespace vistrel
