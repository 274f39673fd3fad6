#pragma once

#include <optional>
#include <string>

#include "platform/system_info.h"

namespace vistrel {

// The simulated Mac: a recent system on an Apple silicon laptop. Tests change the fields.
class SimSystemInfo : public SystemInfo {
  public:
    std::string operatingSystemVersionString() override { return versionString; }
    OperatingSystemVersion operatingSystemVersion() override { return version; }
    std::optional<std::string> hardwareModel() override { return model; }
    int processorCount() override { return processors; }

    std::string versionString = "Version 15.1 (Build 24B83)";
    OperatingSystemVersion version{15, 1, 0};
    // Nothing makes the system control fail.
    std::optional<std::string> model = "Mac15,3";
    int processors = 8;
};

}  // namespace vistrel
