#pragma once

namespace vistrel {

// NSApplication.shared: the agent's own application object. Main thread only.
class AgentApplication {
  public:
    virtual ~AgentApplication() = default;
    // terminate(nil).
    virtual void terminate() = 0;
    // Brings the agent to the front: activate() on macOS 14 and later, else
    // activate(ignoringOtherApps: true).
    virtual void activate() = 0;
};

}  // namespace vistrel
