#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vistrel::testing {

// One include line that breaks the layering of the code.
struct IncludeViolation {
    std::string file;
    int line = 0;
    std::string text;
};

// The include lines of one core source text that reach a platform implementation
// ("platform/mac/", "platform/sim/") or an Apple framework header.
std::vector<IncludeViolation> coreIncludeViolations(const std::string& file,
                                                    const std::string& text);

// Every violation in the core files under `sourceRoot` (src/ less the two platform
// implementations).
std::vector<IncludeViolation> scanCore(const std::filesystem::path& sourceRoot);

}  // namespace vistrel::testing
