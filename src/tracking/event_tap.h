#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>

#include "platform/event_tap_port.h"
#include "tracking/event_tap_delegate.h"
#include "tracking/tap_disable_counter.h"

namespace vistrel {

// One mask bit per event type; types of 64 and more (the two disable notices) cannot
// enter a mask.
template <std::size_t count>
constexpr std::uint64_t eventMaskOf(const std::array<EventType, count>& types) {
    std::uint64_t mask = 0;
    for (EventType type : types) {
        const auto bit = static_cast<std::uint32_t>(type);
        if (bit < 64) mask |= std::uint64_t{1} << bit;
    }
    return mask;
}

// An active event tap at the head of the HID event stream (or of the session's, when the
// system refuses the HID location to this process), running while Mission Control is open. It hands
// each pointer and key event to its delegate and swallows those the delegate consumes together with
// their releases, so that Mission Control never sees a release whose press it did not see.
class EventTap {
  public:
    // The event types that reach the tap, in mask order.
    static constexpr std::array<EventType, 7> tappedTypes = {
        EventType::leftMouseDown,    EventType::leftMouseUp, EventType::mouseMoved,
        EventType::leftMouseDragged, EventType::keyDown,     EventType::keyUp,
        EventType::flagsChanged};
    static const std::uint64_t eventMask;
    // A kept press whose release has not come this long after it lost its release (the tap
    // was off when it came): the next release goes on, so no drag ever sticks.
    static constexpr double releaseLapse = 1.0;

    EventTap() = default;
    ~EventTap();
    EventTap(const EventTap&) = delete;
    EventTap& operator=(const EventTap&) = delete;

    // Held weakly: once the delegate is gone every event passes unchanged.
    std::weak_ptr<EventTapDelegate> delegate;

    // True when the tap runs, also when it already ran.
    bool start();
    // Removes the tap and forgets pending swallows.
    void stop();
    // The tap has a port and the system still considers it valid.
    bool isRunning() const;

    // How often the system switched the tap off since it was last started.
    int disablesSinceStart() const { return disablesSinceStart_; }

    // The tap callback: true passes the event on, false swallows it.
    bool handle(const InputEvent& event);

  private:
    // Creates the tap at the first location the system allows; nothing when none does.
    std::optional<EventTapLocation> createAtBestLocation(EventTapPort& port);
    // Logs where the tap runs, the first time and whenever that changes.
    void noteLocation(EventTapLocation location);
    bool handleMouseDown(EventTapDelegate* target, const InputEvent& event);
    bool handleMouseUp(EventTapDelegate* target, const InputEvent& event);
    bool handleKeyDown(EventTapDelegate* target, const InputEvent& event);

    // The port the tap was made on; set while the tap runs.
    EventTapPort* port_ = nullptr;
    std::set<std::int64_t> swallowedKeys_;
    // When the press whose release is kept from the system was kept; none when no release is.
    std::optional<double> swallowMouseUpSince_;
    std::optional<EventTapLocation> location_;
    TapDisableCounter disables_;
    int disablesSinceStart_ = 0;
};

inline constexpr std::uint64_t EventTap::eventMask = eventMaskOf(EventTap::tappedTypes);

}  // namespace vistrel
