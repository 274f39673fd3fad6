#include "platform/sim/sim_event_monitors.h"

#include <vector>

namespace vistrel {

std::uint64_t SimEventMonitors::addOutsideMouseDownMonitor(std::function<void()> handler) {
    if (failMonitors) return 0;
    outside_[next_] = std::move(handler);
    return next_++;
}

std::uint64_t SimEventMonitors::addLocalKeyDownMonitor(KeyHandler handler) {
    if (failMonitors) return 0;
    keys_[next_] = std::move(handler);
    return next_++;
}

void SimEventMonitors::removeMonitor(std::uint64_t token) {
    outside_.erase(token);
    keys_.erase(token);
}

void SimEventMonitors::mouseDownOutside() {
    // Copies: a handler may remove its own monitor.
    std::vector<std::function<void()>> handlers;
    for (const auto& [token, handler] : outside_)
        handlers.push_back(handler);
    for (const auto& handler : handlers)
        handler();
}

bool SimEventMonitors::pressKey(const KeyPress& press) {
    std::vector<KeyHandler> handlers;
    for (const auto& [token, handler] : keys_)
        handlers.push_back(handler);
    for (const auto& handler : handlers) {
        if (handler(press)) return true;
    }
    return false;
}

}  // namespace vistrel
