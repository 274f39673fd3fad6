#include "platform/sim/sim_script_runner.h"

#include <cmath>
#include <sstream>

#include "platform/sim/sim_desktop.h"

namespace vistrel {

namespace {

constexpr std::string_view finderBundle = "com.apple.finder";
constexpr std::string_view asksFinder = "tell application \"Finder\"";
constexpr std::string_view fileScheme = "file://";

// A file URL's path, as POSIX path gives it; the simulated folders need no decoding.
std::string posixPath(const std::string& url) {
    return url.rfind(fileScheme, 0) == 0 ? url.substr(fileScheme.size()) : url;
}

}  // namespace

std::optional<std::string> SimScriptRunner::run(const std::string& script, double timeout) {
    scripts.push_back(script);
    if (hangs) {
        desktop_.clock().sleep(timeout);
        return std::nullopt;
    }
    if (script.find(asksFinder) == std::string::npos || !automationAllowed) return std::nullopt;
    return finderWindows();
}

std::string SimScriptRunner::finderWindows() const {
    std::ostringstream out;
    for (const SimWindow& window : desktop_.windows()) {
        const SimApplication* app = desktop_.application(window.pid);
        if (app == nullptr || app->bundleIdentifier != finderBundle || window.closed) continue;
        if (!window.document) continue;
        const Rect& f = window.frame;
        out << window.title << '\t' << std::lround(f.minX()) << ',' << std::lround(f.minY()) << ','
            << std::lround(f.maxX()) << ',' << std::lround(f.maxY()) << '\t'
            << posixPath(*window.document) << '\n';
    }
    return out.str();
}

}  // namespace vistrel
