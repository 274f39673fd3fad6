#pragma once

#include <string_view>

namespace vistrel {

// NSApplication.shared: the agent's own application object. Main thread only.
class AgentApplication {
  public:
    virtual ~AgentApplication() = default;
    // Brings the agent to the front: activate() on macOS 14 and later,
    // activate(ignoringOtherApps: true) before.
    virtual void activate() = 0;
    // terminate(nil), scheduled on the main queue so that the caller finishes first.
    virtual void terminate() = 0;
    // Keeps the process out of App Nap for as long as it runs, so that its timers fire on
    // time: ProcessInfo.beginActivity(options: .userInitiatedAllowingIdleSystemSleep,
    // reason:), held and never ended. The Mac may still sleep when idle. A second call
    // changes nothing.
    virtual void keepTimersOnTime(std::string_view reason) = 0;
};

}  // namespace vistrel
