#pragma once

#include "platform/executor.h"

namespace vistrel {

// Grand Central Dispatch queues and NSTimer one-shots on the main run loop.
class MacExecutor : public Executor {
  public:
    MacExecutor();
    SerialQueue& main() override { return *main_; }
    std::shared_ptr<SerialQueue> makeQueue(const std::string& label,
                                           QualityOfService quality) override;
    std::unique_ptr<Timer> oneShot(double interval, double tolerance, Task fire) override;

  private:
    std::shared_ptr<SerialQueue> main_;
};

// The wall clock; sleep blocks the calling background thread.
class MacClock : public Clock {
  public:
    double now() override;
    void sleep(double seconds) override;
};

}  // namespace vistrel
