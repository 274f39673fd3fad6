#include "layers.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <regex>
#include <sstream>
#include <string_view>

namespace vistrel::testing {

namespace fs = std::filesystem;

namespace {

// Frameworks only the macOS layer may include.
constexpr std::array<std::string_view, 15> appleFrameworks = {
    "AppKit",         "ApplicationServices",
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
    const std::string_view framework(header.data(), slash);
    return std::find(appleFrameworks.begin(), appleFrameworks.end(), framework) !=
           appleFrameworks.end();
}

// The macOS layer: platform/mac and its folders (the implementation, the agent's entry point,
// the Settings app's renderer).
bool inMacLayer(const std::string& path) {
    return path.starts_with("platform/mac/");
}

bool isSource(const fs::path& path) {
    const std::string ext = path.extension().string();
    return ext == ".h" || ext == ".cpp" || ext == ".mm";
}

std::string readAll(const fs::path& path) {
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

}  // namespace

Layers Layers::fromDrawing(const std::string& markdown) {
    static const std::regex floorLine(R"(^\s*│ ([a-z_]+(?:/[a-z_]+)*)/)");
    Layers layers;
    std::istringstream lines(markdown);
    for (std::string line; std::getline(lines, line);) {
        std::smatch match;
        if (std::regex_search(line, match, floorLine)) layers.floors_.push_back(match[1]);
    }
    std::reverse(layers.floors_.begin(), layers.floors_.end());
    return layers;
}

std::optional<std::size_t> Layers::floorOf(const std::string& path) const {
    // The deepest folder wins: "platform/mac/x.h" stands on platform/mac, not on platform.
    std::optional<std::size_t> found;
    for (std::size_t i = 0; i < floors_.size(); ++i) {
        if (!path.starts_with(floors_[i] + "/")) continue;
        if (!found || floors_[i].size() > floors_[*found].size()) found = i;
    }
    return found;
}

std::vector<IncludeViolation> includeViolations(const Layers& layers, const std::string& file,
                                                const std::string& text) {
    static const std::regex include(R"(^\s*#\s*(?:include|import)\s*([<"])([^>"]+)[>"])");
    const auto own = layers.floorOf(file);
    std::vector<IncludeViolation> violations;
    std::istringstream lines(text);
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        std::smatch match;
        if (!std::regex_search(line, match, include)) continue;
        const std::string header = match[2];
        if (match[1] == "<") {
            if (isAppleHeader(header) && !inMacLayer(file))
                violations.push_back({file, number, line});
            continue;
        }
        // A header named without a folder is the file's neighbour.
        if (header.find('/') == std::string::npos) continue;
        const auto target = layers.floorOf(header);
        if (!own || !target || *target > *own) violations.push_back({file, number, line});
    }
    return violations;
}

std::vector<IncludeViolation> scanIncludes(const Layers& layers, const fs::path& sourceRoot) {
    std::vector<IncludeViolation> all;
    for (const auto& entry : fs::recursive_directory_iterator(sourceRoot)) {
        if (!entry.is_regular_file() || !isSource(entry.path())) continue;
        const std::string name = fs::relative(entry.path(), sourceRoot).generic_string();
        auto found = includeViolations(layers, name, readAll(entry.path()));
        all.insert(all.end(), found.begin(), found.end());
    }
    return all;
}

std::vector<std::string> foldersWithoutFloor(const Layers& layers, const fs::path& sourceRoot) {
    std::vector<std::string> missing;
    for (const auto& entry : fs::directory_iterator(sourceRoot)) {
        if (!entry.is_directory()) continue;
        const std::string name = entry.path().filename().string();
        if (!layers.floorOf(name + "/")) missing.push_back(name);
    }
    // The ground holds interfaces only: every folder inside it is an implementation and must
    // stand on a floor of its own, above the interfaces.
    const fs::path ground = sourceRoot / "platform";
    if (!fs::is_directory(ground)) return missing;
    for (const auto& entry : fs::directory_iterator(ground)) {
        if (!entry.is_directory()) continue;
        const std::string name = "platform/" + entry.path().filename().string();
        const auto& floors = layers.floors();
        if (std::find(floors.begin(), floors.end(), name) == floors.end()) missing.push_back(name);
    }
    return missing;
}

std::vector<LongFile> longFiles(const std::vector<fs::path>& roots, std::size_t limit) {
    std::vector<LongFile> found;
    for (const fs::path& root : roots) {
        for (const auto& entry : fs::recursive_directory_iterator(root)) {
            if (!entry.is_regular_file() || !isSource(entry.path())) continue;
            const std::string text = readAll(entry.path());
            const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
            if (lines > limit) found.push_back({entry.path().generic_string(), lines});
        }
    }
    return found;
}

}  // namespace vistrel::testing
