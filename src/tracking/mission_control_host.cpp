#include "tracking/mission_control_host.h"

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

}  // namespace vistrel::MissionControlHosts
