#pragma once

#include <ApplicationServices/ApplicationServices.h>

#include "platform/event_tap_port.h"

namespace vistrel {

// One Quartz event tap (CGEventTapCreate) with its run-loop source on the main run loop.
class MacEventTapPort : public EventTapPort {
  public:
    MacEventTapPort() = default;
    ~MacEventTapPort() override { invalidate(); }
    MacEventTapPort(const MacEventTapPort&) = delete;
    MacEventTapPort& operator=(const MacEventTapPort&) = delete;

    bool create(EventTapLocation location, std::uint64_t mask, Handler handler) override;
    bool addToMainRunLoop() override;
    void enable(bool on) override;
    bool isValid() override;
    void invalidate() override;

  private:
    // The tap callback; the refcon is this port, passed unretained.
    static CGEventRef callback(CGEventTapProxy proxy, CGEventType type, CGEventRef event,
                               void* refcon);
    InputEvent read(CGEventType type, CGEventRef event) const;

    Handler handler_;
    CFMachPortRef port_ = nullptr;
    CFRunLoopSourceRef source_ = nullptr;
};

}  // namespace vistrel
