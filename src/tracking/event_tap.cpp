#include "tracking/event_tap.h"

#include <string>
#include <string_view>
#include <utility>

#include "base/log.h"
#include "platform/platform.h"
#include "tracking/health.h"
#include "tracking/tap_callback.h"

namespace vistrel {

namespace {
// The HID location sees events before anything else does; the session location, the next
// best, is open to a process the system refuses the HID location to.
constexpr std::array tapLocations = {EventTapLocation::hid, EventTapLocation::session};
constexpr std::string_view runningAtHID = "event tap: running at the HID location";
constexpr std::string_view runningAtSession =
    "event tap: HID location refused, running at the session location";
constexpr std::string_view disabledOften = "event tap: disabled by the system ";
constexpr std::string_view inAMinute = " times in a minute";
constexpr std::string_view releaseLapsed =
    "event tap: a kept click's release came more than a second late; it goes on";
}  // namespace

EventTap::~EventTap() {
    stop();
}

bool EventTap::start() {
    if (isRunning()) return true;
    // A port the system invalidated is gone for good: drop it and make a new tap.
    if (port_ != nullptr) stop();
    EventTapPort& port = platform().eventTap;
    const auto location = createAtBestLocation(port);
    if (!location) return false;
    if (!port.addToMainRunLoop()) {
        port.invalidate();
        return false;
    }
    port.enable(true);
    port_ = &port;
    disablesSinceStart_ = 0;
    noteLocation(*location);
    return true;
}

std::optional<EventTapLocation> EventTap::createAtBestLocation(EventTapPort& port) {
    for (EventTapLocation location : tapLocations) {
        // The port lives no longer than this tap (stop() runs before it goes), so the handler
        // may refer to the tap unretained, as the system's callback does with its refcon.
        if (port.create(location, eventMask,
                        [this](const InputEvent& event) { return handle(event); })) {
            return location;
        }
    }
    return std::nullopt;
}

void EventTap::noteLocation(EventTapLocation location) {
    if (location_ == location) return;
    location_ = location;
    Log::info(location == EventTapLocation::hid ? runningAtHID : runningAtSession);
}

void EventTap::stop() {
    if (port_ != nullptr) port_->invalidate();
    port_ = nullptr;
    swallowedKeys_.clear();
    swallowMouseUpSince_.reset();
}

bool EventTap::isRunning() const {
    return port_ != nullptr && port_->isValid();
}

bool EventTap::handle(const InputEvent& event) {
    const TapCallback::Scope callback;
    if (event.type == EventType::tapDisabledByTimeout ||
        event.type == EventType::tapDisabledByUserInput) {
        if (port_ != nullptr) port_->enable(true);
        ++disablesSinceStart_;
        if (auto count = disables_.record(platform().clock.now())) {
            Log::error(std::string(disabledOften) + std::to_string(*count) +
                       std::string(inAMinute));
            Health::shared().setTapUnsteady(true);
        }
        return true;
    }
    // Key-ups settle the swallowed set even when nobody listens any more.
    if (event.type == EventType::keyUp) return swallowedKeys_.erase(event.keyCode) == 0;
    const auto target = delegate.lock();
    if (!target) return true;
    switch (event.type) {
        case EventType::leftMouseDown:
            return handleMouseDown(target.get(), event);
        case EventType::leftMouseUp:
            return handleMouseUp(target.get(), event);
        case EventType::mouseMoved:
            target->tapMouseMoved(event.location);
            break;
        case EventType::leftMouseDragged:
            target->tapMouseDragged(event.location);
            break;
        case EventType::keyDown:
            return handleKeyDown(target.get(), event);
        case EventType::flagsChanged:
            target->tapFlagsChanged(event.flags);
            break;
        default:
            break;
    }
    return true;
}

bool EventTap::handleMouseDown(EventTapDelegate* target, const InputEvent& event) {
    const bool consumed = target->tapMouseDown(event.location, event.flags);
    // A new press settles any earlier one whose release never came.
    swallowMouseUpSince_.reset();
    if (consumed) swallowMouseUpSince_ = platform().clock.now();
    return !consumed;
}

bool EventTap::handleMouseUp(EventTapDelegate* target, const InputEvent& event) {
    if (const auto since = std::exchange(swallowMouseUpSince_, std::nullopt)) {
        if (platform().clock.now() - *since <= releaseLapse) return false;
        Log::info(releaseLapsed);
    }
    target->tapMouseUp(event.location);
    return true;
}

bool EventTap::handleKeyDown(EventTapDelegate* target, const InputEvent& event) {
    // A repeat belongs to the press that began it: kept when that press ran an action (the
    // application must not get the rest of a keystroke whose start it never saw), passed on
    // untouched when the press went to the system.
    if (event.autorepeat) return !swallowedKeys_.contains(event.keyCode);
    const bool consumed = target->tapKeyDown(event.keyCode, event.flags);
    if (consumed) swallowedKeys_.insert(event.keyCode);
    return !consumed;
}

}  // namespace vistrel
