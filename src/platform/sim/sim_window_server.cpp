#include "platform/sim/sim_window_server.h"

#include <cstdio>

#include "platform/sim/sim_desktop.h"

namespace vistrel {

std::optional<std::vector<WindowDescription>> SimWindowServer::windowList(std::uint32_t) {
    ++listQueries_;
    if (listFails) return std::nullopt;
    std::vector<WindowDescription> list = frontWindows;
    for (const SimWindow& window : desktop_.windows()) {
        if (!desktop_.isOnScreen(window)) continue;
        const SimApplication* app = desktop_.application(window.pid);
        list.push_back({static_cast<std::uint32_t>(window.id), window.pid,
                        app ? std::optional(app->name) : std::nullopt, window.title, window.layer,
                        window.frame});
    }
    return list;
}

std::optional<std::string> SimWindowServer::displayUUID(std::uint32_t displayID) {
    for (const ScreenDescription& screen : desktop_.screens()) {
        if (screen.displayID != displayID) continue;
        if (const auto given = displayUUIDs.find(displayID); given != displayUUIDs.end())
            return given->second;
        char text[40];
        std::snprintf(text, sizeof text, "5A1D0000-0000-4000-8000-%012X", displayID);
        return std::string(text);
    }
    return std::nullopt;
}

bool SimWindowServer::postKey(std::uint16_t keyCode, bool down) {
    postedKeys.emplace_back(keyCode, down);
    desktop_.dock().keyPosted(keyCode, down);
    if (onKey) onKey(keyCode, down);
    return true;
}

Point SimWindowServer::pointerLocation() {
    return desktop_.eventTap().pointer();
}

}  // namespace vistrel
