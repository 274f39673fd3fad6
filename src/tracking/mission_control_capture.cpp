#include "tracking/mission_control_capture.h"

#include <algorithm>
#include <fstream>
#include <memory>

#include "platform/platform.h"
#include "tracking/ax.h"
#include "tracking/mission_control_detector.h"
#include "tracking/mission_control_host.h"
#include "tracking/thumbnail_reader.h"
#include "tracking/window_manager_thumbnails.h"

namespace vistrel::MissionControlCapture {

namespace {

using nlohmann::json;

constexpr std::string_view missionControlPrefix = "mc.";
constexpr int jsonIndent = 2;

json rectangle(Rect rect) {
    return json::array({rect.x, rect.y, rect.width, rect.height});
}

// Walks one subtree, recording what identifies each element and where it is drawn.
class TreeWalk {
  public:
    explicit TreeWalk(bool withTitles) : withTitles_(withTitles) {}

    json node(const AXElement& element, int level) {
        json out = json::object();
        ++nodes_;
        text(out, "role", element, "AXRole");
        text(out, "subrole", element, "AXSubrole");
        text(out, "identifier", element, "AXIdentifier");
        if (withTitles_) text(out, "title", element, "AXTitle");
        if (auto frame = AX::frame(element)) out["frame"] = rectangle(*frame);
        if (auto window = WindowManagerThumbnails::windowOf(element)) out["wid"] = *window;
        json children = json::array();
        if (level < deepestLevel) {
            for (const AXElement& child : AX::elements(element, "AXChildren")) {
                if (nodes_ >= mostNodes) break;
                children.push_back(node(child, level + 1));
            }
        }
        if (!children.empty()) out["children"] = std::move(children);
        return out;
    }

  private:
    static void text(json& out, const char* key, const AXElement& element,
                     std::string_view attribute) {
        if (auto value = AX::string(element, attribute)) out[key] = *value;
    }

    bool withTitles_;
    std::size_t nodes_ = 0;
};

bool isMissionControlGroup(const AXElement& element) {
    const auto identifier = AX::string(element, "AXIdentifier");
    return identifier && (*identifier == ThumbnailReader::missionControlIdentifier ||
                          identifier->starts_with(missionControlPrefix));
}

// The Mission Control groups among a process's children, and the process itself.
json process(std::string_view bundleIdentifier, float timeout, bool withTitles) {
    ApplicationElement application(bundleIdentifier, timeout);
    const auto element = application.get();
    if (!element) return nullptr;
    TreeWalk walk(withTitles);
    json groups = json::array();
    for (const AXElement& child : AX::elements(*element, "AXChildren")) {
        if (isMissionControlGroup(child)) groups.push_back(walk.node(child, 1));
    }
    return {{"pid", application.pid()}, {"groups", std::move(groups)}};
}

json windowList() {
    json windows = json::array();
    const auto list = platform().windowServer.windowList(WindowListOption::onScreenOnly);
    if (!list) return windows;
    for (const WindowDescription& window : *list) {
        json entry = json::object();
        if (window.number) entry["number"] = *window.number;
        if (window.ownerPid) entry["pid"] = *window.ownerPid;
        if (window.ownerName) entry["owner"] = *window.ownerName;
        if (window.layer) entry["layer"] = *window.layer;
        if (window.bounds) entry["bounds"] = rectangle(*window.bounds);
        windows.push_back(std::move(entry));
    }
    return windows;
}

Outcome write(const Request& request) {
    std::ofstream file(request.path, std::ios::binary | std::ios::trunc);
    if (!file) return Outcome::notWritten;
    file << snapshot(request.withTitles).dump(jsonIndent) << '\n';
    return file.good() ? Outcome::written : Outcome::notWritten;
}

void finish(const std::function<void(Outcome)>& done, Outcome outcome) {
    platform().executor.main().async([done, outcome] { done(outcome); });
}

void poll(std::shared_ptr<SerialQueue> queue, Request request, double deadline,
          std::function<void(Outcome)> done) {
    if (MissionControlDetector::isMissionControlOpen()) {
        finish(done, write(request));
        return;
    }
    if (platform().clock.now() >= deadline) {
        finish(done, Outcome::neverOpened);
        return;
    }
    SerialQueue& next = *queue;
    next.after(pollInterval, [queue = std::move(queue), request = std::move(request), deadline,
                              done = std::move(done)]() mutable {
        poll(std::move(queue), std::move(request), deadline, std::move(done));
    });
}

}  // namespace

std::optional<Request> requested(const std::vector<std::string>& arguments) {
    const auto found = std::find(arguments.begin(), arguments.end(), flag);
    if (found == arguments.end()) return std::nullopt;
    Request request;
    if (found + 1 != arguments.end() && !(found + 1)->starts_with("--"))
        request.path = *(found + 1);
    request.withTitles =
        std::find(arguments.begin(), arguments.end(), titlesFlag) != arguments.end();
    return request;
}

json snapshot(bool withTitles) {
    const OperatingSystemVersion version = platform().systemInfo.operatingSystemVersion();
    const bool windowManager =
        MissionControlHosts::forVersion(version) == MissionControlHost::windowManager;
    return {
        {"system", {{"major", version.major}, {"minor", version.minor}, {"patch", version.patch}}},
        {"missionControlHost", windowManager ? "WindowManager" : "Dock"},
        {"titles", withTitles},
        {"dock",
         process(ThumbnailReader::dockBundleIdentifier, ThumbnailReader::dockTimeout, withTitles)},
        {"windowManager", process(WindowManagerThumbnails::bundleIdentifier,
                                  WindowManagerThumbnails::timeout, withTitles)},
        {"windows", windowList()},
    };
}

void start(const Request& request, std::function<void(Outcome)> done) {
    if (request.path.empty()) {
        finish(done, Outcome::noFile);
        return;
    }
    auto queue =
        platform().executor.makeQueue(std::string(queueLabel), QualityOfService::userInitiated);
    const double deadline = platform().clock.now() + waitLimit;
    SerialQueue& first = *queue;
    first.async([queue = std::move(queue), request, deadline, done = std::move(done)]() mutable {
        poll(std::move(queue), std::move(request), deadline, std::move(done));
    });
}

std::string message(Outcome outcome, const Request& request) {
    switch (outcome) {
        case Outcome::written:
            return "mission control: capture written to " + request.path;
        case Outcome::neverOpened:
            return "mission control: did not open within a minute, nothing written";
        case Outcome::notWritten:
            return "mission control: could not write " + request.path;
        case Outcome::noFile:
            break;
    }
    return "usage: Vistrel --capture-mission-control FILE [--with-titles]";
}

}  // namespace vistrel::MissionControlCapture
