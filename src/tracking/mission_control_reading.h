#pragma once

#include <optional>
#include <string>

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
    // The windows Mission Control may show, as enumerated to tie thumbnails without a window
    // number, or because none was read; 0 when they were not enumerated.
    int windows = 0;

    // "host Dock, thumbnails 12, windows 0, mapped 11, refusals 1", for the log and reports.
    std::string summary() const;

    bool operator==(const MissionControlReading&) const = default;
};

}  // namespace vistrel
