#include "tracking/mission_control_host.h"

#include "diagnostics/log.h"
#include "platform/platform.h"

namespace vistrel::MissionControlHosts {

MissionControlHost forVersion(const OperatingSystemVersion& version) {
    return version.major >= firstWindowManagerMajor ? MissionControlHost::windowManager
                                                    : MissionControlHost::dock;
}

MissionControlHost running() {
    return forVersion(platform().systemInfo.operatingSystemVersion());
}

std::string_view startLine(MissionControlHost host) {
    return host == MissionControlHost::windowManager ? readingWindowManager : readingDock;
}

void logWhereRead() {
    Log::info(startLine(running()));
}

}  // namespace vistrel::MissionControlHosts
