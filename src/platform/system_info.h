#pragma once

#include <optional>
#include <string>

namespace vistrel {

// ProcessInfo.operatingSystemVersion.
struct OperatingSystemVersion {
    int major = 0;
    int minor = 0;
    int patch = 0;

    friend bool operator==(const OperatingSystemVersion&, const OperatingSystemVersion&) = default;
};

// The machine the agent runs on, read afresh at every call.
class SystemInfo {
  public:
    virtual ~SystemInfo() = default;
    // ProcessInfo.operatingSystemVersionString ("Version 15.1 (Build 24B83)").
    virtual std::string operatingSystemVersionString() = 0;
    // ProcessInfo.operatingSystemVersion.
    virtual OperatingSystemVersion operatingSystemVersion() = 0;
    // sysctlbyname("hw.model"); nothing when the call fails.
    virtual std::optional<std::string> hardwareModel() = 0;
    // ProcessInfo.processorCount.
    virtual int processorCount() = 0;
};

}  // namespace vistrel
