#pragma once

#include <optional>
#include <string>

#include "platform/agent_application.h"

namespace vistrel {

// The agent's application object on the simulated desktop: it counts activations and
// remembers being asked to quit and to keep its timers on time.
class SimAgentApplication : public AgentApplication {
  public:
    void activate() override { ++activations_; }
    void terminate() override { terminated_ = true; }
    void keepTimersOnTime(std::string_view reason) override {
        if (!timersKeptOnTime_) timersKeptOnTime_ = std::string(reason);
    }

    int activations() const { return activations_; }
    bool terminated() const { return terminated_; }
    // The reason given when the process was kept out of App Nap; nothing while it is not.
    const std::optional<std::string>& timersKeptOnTime() const { return timersKeptOnTime_; }

  private:
    int activations_ = 0;
    bool terminated_ = false;
    std::optional<std::string> timersKeptOnTime_;
};

}  // namespace vistrel
