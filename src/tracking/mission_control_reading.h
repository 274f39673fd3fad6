#pragma once

#include <optional>

#include "tracking/mission_control_host.h"

namespace vistrel {

// What the engine managed to read during one opening of Mission Control: the host whose
// tree answered, how many thumbnails it showed, and how many of them were tied to a window
// or refused (no window fits, or two fit equally). The self-check judges whether Vistrel
// can read Mission Control on this Mac from a run of these.
struct MissionControlReading {
    // The host whose tree was read; nothing when neither the Dock nor WindowManager answered.
    std::optional<MissionControlHost> host;
    int thumbnails = 0;
    int mapped = 0;
    int refusals = 0;

    bool operator==(const MissionControlReading&) const = default;
};

}  // namespace vistrel
