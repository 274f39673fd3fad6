#include "include_rules.h"

#include <array>
#include <fstream>
#include <regex>
#include <sstream>

namespace vistrel::testing {

namespace fs = std::filesystem;

namespace {

// Frameworks only the macOS layer may include.
constexpr std::array appleFrameworks = {"AppKit",         "ApplicationServices",
                                        "Carbon",         "Cocoa",
                                        "CoreFoundation", "CoreGraphics",
                                        "CoreServices",   "CoreText",
                                        "Foundation",     "IOKit",
                                        "objc",           "os",
                                        "QuartzCore",     "ServiceManagement",
                                        "Sparkle"};

bool isAppleHeader(const std::string& header) {
    const auto slash = header.find('/');
    if (slash == std::string::npos) return false;
    const std::string framework = header.substr(0, slash);
    for (const char* name : appleFrameworks) {
        if (framework == name) return true;
    }
    return false;
}

bool isPlatformImplementation(const std::string& header) {
    return header.starts_with("platform/mac/") || header.starts_with("platform/sim/") ||
           header.starts_with("mac/") || header.starts_with("sim/");
}

bool isCoreSource(const fs::path& path) {
    const std::string ext = path.extension().string();
    return ext == ".h" || ext == ".cpp" || ext == ".hpp" || ext == ".mm";
}

}  // namespace

std::vector<IncludeViolation> coreIncludeViolations(const std::string& file,
                                                    const std::string& text) {
    static const std::regex include(R"(^\s*#\s*(?:include|import)\s*([<"])([^>"]+)[>"])");
    std::vector<IncludeViolation> violations;
    std::istringstream lines(text);
    std::string line;
    int number = 0;
    while (std::getline(lines, line)) {
        ++number;
        std::smatch match;
        if (!std::regex_search(line, match, include)) continue;
        const std::string header = match[2];
        const bool angled = match[1] == "<";
        if ((angled && isAppleHeader(header)) || isPlatformImplementation(header)) {
            violations.push_back({file, number, line});
        }
    }
    return violations;
}

std::vector<IncludeViolation> scanCore(const fs::path& sourceRoot) {
    std::vector<IncludeViolation> all;
    for (const auto& entry : fs::recursive_directory_iterator(sourceRoot)) {
        const fs::path relative = fs::relative(entry.path(), sourceRoot);
        const std::string name = relative.generic_string();
        if (name.starts_with("platform/mac/") || name.starts_with("platform/sim/")) continue;
        if (!entry.is_regular_file() || !isCoreSource(entry.path())) continue;
        std::ifstream in(entry.path());
        std::stringstream text;
        text << in.rdbuf();
        auto found = coreIncludeViolations(name, text.str());
        all.insert(all.end(), found.begin(), found.end());
    }
    return all;
}

}  // namespace vistrel::testing
