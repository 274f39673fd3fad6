#pragma once

#include <atomic>

#include "platform/executor.h"

namespace vistrel {

// Virtual time. It moves only when the simulation advances it: a background task that
// sleeps moves it forward at once instead of waiting.
class SimClock : public Clock {
  public:
    // 2026-11-15T03:19:02Z: a fixed start, so log lines and pictures are reproducible.
    static constexpr double defaultStart = 1'794'712'742.0;

    double now() override { return now_.load(); }
    void sleep(double seconds) override { advanceBy(seconds); }

    void advanceBy(double seconds) {
        if (seconds > 0) now_.store(now_.load() + seconds);
    }
    void advanceTo(double time) {
        if (time > now_.load()) now_.store(time);
    }

  private:
    std::atomic<double> now_{defaultStart};
};

}  // namespace vistrel
