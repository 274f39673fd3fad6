#pragma once

#include <cstdint>
#include <map>

#include "platform/event_monitors.h"

namespace vistrel {

// NSEvent's global and local monitors, each kept under a token. Main thread only.
class MacEventMonitors : public EventMonitors {
  public:
    MacEventMonitors();
    ~MacEventMonitors() override;
    MacEventMonitors(const MacEventMonitors&) = delete;
    MacEventMonitors& operator=(const MacEventMonitors&) = delete;

    std::uint64_t addOutsideMouseDownMonitor(std::function<void()> handler) override;
    std::uint64_t addLocalKeyDownMonitor(KeyHandler handler) override;
    void removeMonitor(std::uint64_t token) override;

  private:
    // The monitor objects AppKit answered, by token (an NSMutableDictionary).
    void* monitors_;
    std::uint64_t next_ = 1;
};

}  // namespace vistrel
