#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/window_server.h"

namespace vistrel {

class SimDesktop;

// The simulated window server: the window list is the desktop's open windows, front to
// back, behind any extra windows a scene puts in front (the Dock's Mission Control windows).
class SimWindowServer : public WindowServer {
  public:
    explicit SimWindowServer(SimDesktop& desktop) : desktop_(desktop) {}

    std::optional<std::vector<WindowDescription>> windowList(std::uint32_t options) override;
    std::optional<std::string> displayUUID(std::uint32_t displayID) override;
    bool postKey(std::uint16_t keyCode, bool down) override;
    Point pointerLocation() override;

    // Descriptions listed in front of every application window.
    std::vector<WindowDescription> frontWindows;
    // UUIDs a scene gives displays (a captured Mac's), answered before the made-up ones.
    std::map<std::uint32_t, std::string> displayUUIDs;
    // The window server answers with no list at all.
    bool listFails = false;
    // Every key event posted, in order: (key code, down).
    std::vector<std::pair<std::uint16_t, bool>> postedKeys;
    // Called for every posted key, after the Dock has seen it (Escape leaves Mission
    // Control), so a scene can react as well.
    std::function<void(std::uint16_t keyCode, bool down)> onKey;
    int listQueries() const { return listQueries_; }

  private:
    SimDesktop& desktop_;
    int listQueries_ = 0;
};

}  // namespace vistrel
