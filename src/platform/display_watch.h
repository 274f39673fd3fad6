#pragma once

#include <functional>

namespace vistrel {

// Tells when the connected displays may have changed: NSApplication's
// didChangeScreenParametersNotification on NSNotificationCenter.defaultCenter (a display
// plugged, unplugged or rearranged, the lid closed or opened) and NSWorkspace's
// didWakeNotification on NSWorkspace.sharedWorkspace.notificationCenter, both observed with
// addObserverForName:object:queue:usingBlock: on the main queue. Neither says what changed,
// and they come in bursts (displays reconnect in stages after a wake), so the observer reads
// the screens itself once they have settled. Main thread only.
class DisplayWatch {
  public:
    using Observer = std::function<void()>;

    virtual ~DisplayWatch() = default;
    // Starts telling the observer after each change, in place of any earlier observer; false
    // when the system would not take the observation.
    virtual bool start(Observer observer) = 0;
    virtual void stop() = 0;
};

}  // namespace vistrel
