#pragma once

#include "platform/display_watch.h"

namespace vistrel {

// The screen-parameters and wake notifications, observed on the main queue. Main thread only.
class MacDisplayWatch : public DisplayWatch {
  public:
    MacDisplayWatch() = default;
    ~MacDisplayWatch() override { stop(); }
    MacDisplayWatch(const MacDisplayWatch&) = delete;
    MacDisplayWatch& operator=(const MacDisplayWatch&) = delete;

    bool start(Observer observer) override;
    void stop() override;

  private:
    // The two observation tokens the notification centres answered, retained.
    void* screens_ = nullptr;
    void* wake_ = nullptr;
};

}  // namespace vistrel
