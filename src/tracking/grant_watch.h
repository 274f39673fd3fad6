#pragma once

#include <memory>
#include <optional>

#include "platform/ax_value.h"
#include "platform/executor.h"

namespace vistrel {

// Watches the Accessibility grant for the agent's whole run: at the first look and whenever
// the grant changes, one real read (GrantProbe) on the given queue tells a grant that works
// from a stale one, which Health keeps. Main thread only.
class GrantWatch {
  public:
    explicit GrantWatch(std::shared_ptr<SerialQueue> queue) : queue_(std::move(queue)) {}

    // Cheap unless the grant changed since the last call: one question to the system.
    void check();

  private:
    void probed(std::optional<AXError> answer);

    std::shared_ptr<SerialQueue> queue_;
    std::optional<bool> lastTrusted_;
    // Held weakly by a read under way, which finds it gone when the watch is.
    std::shared_ptr<int> alive_ = std::make_shared<int>(0);
};

}  // namespace vistrel
