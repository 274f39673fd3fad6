#include "tracking/mission_control_reading.h"

namespace vistrel {

namespace {

std::string_view hostName(const std::optional<MissionControlHost>& host) {
    if (!host) return "none";
    return *host == MissionControlHost::dock ? "Dock" : "WindowManager";
}

}  // namespace

std::string MissionControlReading::summary() const {
    return "host " + std::string(hostName(host)) + ", thumbnails " + std::to_string(thumbnails) +
           ", windows " + std::to_string(windows) + ", mapped " + std::to_string(mapped) +
           ", refusals " + std::to_string(refusals);
}

}  // namespace vistrel
