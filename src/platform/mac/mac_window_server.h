#pragma once

#include "platform/window_server.h"

namespace vistrel {

// The Quartz window server: the on-screen window list, display UUIDs and posted keys.
class MacWindowServer : public WindowServer {
  public:
    std::optional<std::vector<WindowDescription>> windowList(std::uint32_t options) override;
    std::optional<std::string> displayUUID(std::uint32_t displayID) override;
    bool postKey(std::uint16_t keyCode, bool down) override;
    Point pointerLocation() override;
};

}  // namespace vistrel
