#pragma once

#include "platform/system_info.h"

namespace vistrel {

// ProcessInfo and sysctlbyname.
class MacSystemInfo : public SystemInfo {
  public:
    std::string operatingSystemVersionString() override;
    OperatingSystemVersion operatingSystemVersion() override;
    std::optional<std::string> hardwareModel() override;
    int processorCount() override;
};

}  // namespace vistrel
