#pragma once

#include <cstdint>
#include <map>

#include "platform/event_monitors.h"

namespace vistrel {

// The simulated event monitors: a test presses keys and clicks into other applications
// through them.
class SimEventMonitors : public EventMonitors {
  public:
    std::uint64_t addOutsideMouseDownMonitor(std::function<void()> handler) override;
    std::uint64_t addLocalKeyDownMonitor(KeyHandler handler) override;
    void removeMonitor(std::uint64_t token) override;

    // A mouse-down in another application.
    void mouseDownOutside();
    // A key-down in the agent: whether a monitor swallowed it.
    bool pressKey(const KeyPress& press);
    std::size_t outsideMonitors() const { return outside_.size(); }
    std::size_t keyMonitors() const { return keys_.size(); }
    // When set, no monitor can be added.
    bool failMonitors = false;

  private:
    std::uint64_t next_ = 1;
    std::map<std::uint64_t, std::function<void()>> outside_;
    std::map<std::uint64_t, KeyHandler> keys_;
};

}  // namespace vistrel
