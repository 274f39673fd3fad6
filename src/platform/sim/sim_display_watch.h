#pragma once

#include "platform/display_watch.h"

namespace vistrel {

class SimExecutor;

// The display notifications of the simulated desktop: each post reaches the observer on the
// main queue, as the system delivers them, unless the watch was refused or posts are lost on
// purpose.
class SimDisplayWatch : public DisplayWatch {
  public:
    explicit SimDisplayWatch(SimExecutor& executor) : executor_(executor) {}

    bool start(Observer observer) override;
    void stop() override { observer_ = nullptr; }

    // One notification, as the system posts it after a change or a wake.
    void post();
    bool observing() const { return static_cast<bool>(observer_); }

    // The system will not take the observation: start() answers false.
    bool refuses = false;
    // While set, posts reach no observer.
    bool dropsPosts = false;
    int posts = 0;

  private:
    SimExecutor& executor_;
    Observer observer_;
};

}  // namespace vistrel
