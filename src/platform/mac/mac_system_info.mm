#include "platform/mac/mac_system_info.h"

#include <sys/sysctl.h>

#include <vector>

#include "platform/mac/mac_strings.h"

namespace vistrel {

namespace {
constexpr char hardwareModelName[] = "hw.model";
}  // namespace

std::string MacSystemInfo::operatingSystemVersionString() {
    return utf8(NSProcessInfo.processInfo.operatingSystemVersionString);
}

OperatingSystemVersion MacSystemInfo::operatingSystemVersion() {
    const NSOperatingSystemVersion version = NSProcessInfo.processInfo.operatingSystemVersion;
    return {static_cast<int>(version.majorVersion), static_cast<int>(version.minorVersion),
            static_cast<int>(version.patchVersion)};
}

std::optional<std::string> MacSystemInfo::hardwareModel() {
    size_t size = 0;
    if (sysctlbyname(hardwareModelName, nullptr, &size, nullptr, 0) != 0 || size == 0)
        return std::nullopt;
    std::vector<char> model(size);
    if (sysctlbyname(hardwareModelName, model.data(), &size, nullptr, 0) != 0) return std::nullopt;
    return std::string(model.data());
}

int MacSystemInfo::processorCount() {
    return static_cast<int>(NSProcessInfo.processInfo.processorCount);
}

}  // namespace vistrel
