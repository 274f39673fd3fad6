#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "platform/event_tap_port.h"

namespace vistrel {

// The event stream of the simulation and the one tap on it. Events are delivered with
// deliver(); the answer says whether the event went on to the system (true) or was
// swallowed by the tap (false).
class SimEventTapPort : public EventTapPort {
  public:
    bool create(EventTapLocation location, std::uint64_t mask, Handler handler) override;
    bool addToMainRunLoop() override;
    void enable(bool on) override;
    bool isValid() override { return exists_ && valid_; }
    void invalidate() override;

    // Delivers one event: through the tap when one runs and its mask holds the type (the
    // two disable notices always reach a tap), otherwise straight on.
    bool deliver(const InputEvent& event);

    // Where the pointer is: the location of the last mouse event delivered, or where a test
    // put it without an event.
    Point pointer() const { return pointer_; }
    void setPointer(Point location) { pointer_ = location; }

    // Faults: tap creation fails at every location or only at the HID location (as for a
    // process that is not root); its run-loop source fails; the system invalidates the port.
    bool creationFails = false;
    bool refusesHIDLocation = false;
    bool sourceFails = false;
    void invalidateBySystem() { valid_ = false; }
    // The system disables the tap, as it does when a callback is too slow.
    void disableBySystem() { enabled_ = false; }

    // One delivered event and whether it went on to the system.
    struct Delivery {
        InputEvent event;
        bool passed = true;
    };
    // Every event delivered so far, in order.
    const std::vector<Delivery>& deliveries() const { return deliveries_; }
    // Called with every event that went on to the system, so the desktop can react to it
    // (a click that reaches Mission Control).
    std::function<void(const InputEvent&)> onPassed;

    bool exists() const { return exists_; }
    bool enabled() const { return enabled_; }
    std::uint64_t mask() const { return mask_; }
    EventTapLocation location() const { return location_; }
    int creations() const { return creations_; }
    int enables() const { return enables_; }

  private:
    bool route(const InputEvent& event);

    Handler handler_;
    std::vector<Delivery> deliveries_;
    Point pointer_;
    std::uint64_t mask_ = 0;
    EventTapLocation location_ = EventTapLocation::hid;
    bool exists_ = false;
    bool valid_ = false;
    bool inRunLoop_ = false;
    bool enabled_ = false;
    int creations_ = 0;
    int enables_ = 0;
};

// Synthetic events as the system would deliver them.
namespace SimInput {
InputEvent mouseMoved(Point location);
InputEvent mouseDragged(Point location);
InputEvent mouseDown(Point location, std::uint64_t flags = 0);
InputEvent mouseUp(Point location);
InputEvent keyDown(std::int64_t keyCode, std::uint64_t flags, bool autorepeat = false);
InputEvent keyUp(std::int64_t keyCode, std::uint64_t flags = 0);
InputEvent flagsChanged(std::uint64_t flags);
InputEvent tapDisabled(EventType notice);
}  // namespace SimInput

}  // namespace vistrel
