#pragma once

namespace vistrel {

// NSApplication.shared: the agent's own application object.
class AgentApplication {
  public:
    virtual ~AgentApplication() = default;
    // Brings the agent to the front: activate() on macOS 14 and later,
    // activate(ignoringOtherApps: true) before.
    virtual void activate() = 0;
    // terminate(nil), scheduled on the main queue so that the caller finishes first.
    virtual void terminate() = 0;
};

}  // namespace vistrel
