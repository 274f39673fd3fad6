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

    // The major version the system really runs; what Mission Control looks like follows it.
    int runningMajor() const { return actualMajor.value_or(version.major); }

    std::string versionString = "Version 15.1 (Build 24B83)";
    // The version told to the agent.
    OperatingSystemVersion version{15, 1, 0};
    // Set when the system tells the agent an older, compatibility version than it runs, as
    // macOS answers programs linked against an older SDK: 26 tells them 16, as Big Sur told
    // them 10.16 (dotnet/runtime pull request 116536, python/cpython pull request 136339).
    std::optional<int> actualMajor;
    // Nothing makes the system control fail.
    std::optional<std::string> model = "Mac15,3";
    int processors = 8;
};

}  // namespace vistrel
