#pragma once

#include <string_view>

#include "platform/system_info.h"

namespace vistrel {

// The process whose accessibility tree holds Mission Control on the running system. Up to
// macOS 26 the Dock draws it (and a Dock window on layer 18 announces it); from macOS 27 the
// Dock keeps only an empty "mc" group and WindowManager holds the thumbnails.
enum class MissionControlHost { dock, windowManager };

namespace MissionControlHosts {

// The first major version of macOS whose Mission Control lives in WindowManager. The
// build number's prefix is no guide: betas of one version carry the next one's.
inline constexpr int firstWindowManagerMajor = 27;

inline constexpr std::string_view readingDock = "mission control: reading the Dock";
inline constexpr std::string_view readingWindowManager = "mission control: reading WindowManager";

MissionControlHost forVersion(const OperatingSystemVersion& version);
// The host on the system the agent runs on.
MissionControlHost running();
// The line naming where Mission Control was found, logged at its first opening.
std::string_view startLine(MissionControlHost host);

}  // namespace MissionControlHosts

}  // namespace vistrel
