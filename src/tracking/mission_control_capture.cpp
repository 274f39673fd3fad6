#include "tracking/mission_control_capture.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <memory>
#include <variant>

#include "platform/platform.h"
#include "tracking/ax.h"
#include "tracking/mission_control_detector.h"
#include "tracking/mission_control_host.h"
#include "tracking/thumbnail_reader.h"
#include "tracking/window_catalog.h"
#include "tracking/window_manager_thumbnails.h"

namespace vistrel::MissionControlCapture {

namespace {

using nlohmann::json;

constexpr std::string_view missionControlPrefix = "mc.";
// Attribute texts that name a kind of element rather than what the user works on.
constexpr std::string_view identifyingTexts[] = {"AXRole", "AXSubrole", "AXRoleDescription",
                                                 "AXIdentifier"};
constexpr int jsonIndent = 2;

json rectangle(Rect rect) {
    return json::array({rect.x, rect.y, rect.width, rect.height});
}

// Walks one subtree, recording what identifies each element and where it is drawn.
// Every element found is given its process's time-out before anything is asked of it, as the
// readers do: the one set on the system-wide element would otherwise hold.
class TreeWalk {
  public:
    TreeWalk(bool withTitles, float timeout) : withTitles_(withTitles), timeout_(timeout) {}

    json node(const AXElement& element, int level) {
        json out = json::object();
        ++nodes_;
        if (json all = attributes(element); !all.empty()) out["attributes"] = std::move(all);
        text(out, "role", element, "AXRole");
        text(out, "subrole", element, "AXSubrole");
        text(out, "identifier", element, "AXIdentifier");
        if (withTitles_) text(out, "title", element, "AXTitle");
        if (auto frame = AX::frame(element)) out["frame"] = rectangle(*frame);
        if (auto window = WindowManagerThumbnails::windowOf(element)) out["wid"] = *window;
        json children = json::array();
        if (level < deepestLevel) {
            for (const AXElement& child : AX::elements(element, "AXChildren", timeout_)) {
                if (nodes_ >= mostNodes) break;
                children.push_back(node(child, level + 1));
            }
        }
        if (!children.empty()) out["children"] = std::move(children);
        return out;
    }

  private:
    // Every attribute the element names with its value, its children apart (walked below).
    // Text is kept only where it identifies (roles, identifiers) unless titles were asked for.
    json attributes(const AXElement& element) const {
        std::vector<std::string> names;
        json all = json::object();
        if (platform().accessibility.attributeNames(element, names) != AXError::success) return all;
        for (const std::string& name : names) {
            if (name == "AXChildren") continue;
            AXValue value;
            if (platform().accessibility.copyAttribute(element, name, value) != AXError::success) {
                all[name] = nullptr;
                continue;
            }
            all[name] = valueOf(name, value);
        }
        return all;
    }

    json valueOf(const std::string& name, const AXValue& value) const {
        if (const auto* text = std::get_if<std::string>(&value)) {
            const bool identifies =
                std::find(std::begin(identifyingTexts), std::end(identifyingTexts), name) !=
                std::end(identifyingTexts);
            // Any other text, when titles were not asked for, is only said to be there.
            return withTitles_ || identifies ? json(*text) : json{{"hidden", "text"}};
        }
        if (const auto* flag = std::get_if<bool>(&value)) return *flag;
        if (const auto* integer = std::get_if<std::int64_t>(&value)) return *integer;
        if (const auto* real = std::get_if<double>(&value)) return *real;
        if (const auto* rect = std::get_if<Rect>(&value)) return rectangle(*rect);
        if (const auto* point = std::get_if<Point>(&value))
            return json::array({point->x, point->y});
        if (const auto* size = std::get_if<Size>(&value))
            return json::array({size->width, size->height});
        if (std::holds_alternative<AXElement>(value)) return "element";
        if (const auto* list = std::get_if<std::vector<AXElement>>(&value)) {
            return json{{"elements", list->size()}};
        }
        return "other";
    }

    static void text(json& out, const char* key, const AXElement& element,
                     std::string_view attribute) {
        if (auto value = AX::string(element, attribute)) out[key] = *value;
    }

    bool withTitles_;
    float timeout_;
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
    TreeWalk walk(withTitles, timeout);
    json groups = json::array();
    for (const AXElement& child : AX::elements(*element, "AXChildren", timeout)) {
        if (isMissionControlGroup(child)) groups.push_back(walk.node(child, 1));
    }
    return {{"pid", application.pid()}, {"groups", std::move(groups)}};
}

json thumbnails(const ThumbnailReader::Read& read, bool withTitles) {
    json list = json::array();
    for (const MissionControlThumbnail& thumbnail : read.thumbnails) {
        json entry{{"frame", rectangle(thumbnail.frame)}};
        if (thumbnail.window != 0) entry["wid"] = thumbnail.window;
        if (thumbnail.identifier) entry["identifier"] = *thumbnail.identifier;
        if (withTitles && thumbnail.title) entry["title"] = *thumbnail.title;
        list.push_back(std::move(entry));
    }
    return list;
}

// What the system-wide hit-test answers at each thumbnail's centre: up to macOS 26 some
// systems answer with the application's window, others with the Dock's button.
json hitTests(const ThumbnailReader::Read& read, bool withTitles) {
    json list = json::array();
    for (const MissionControlThumbnail& thumbnail : read.thumbnails) {
        const Point centre = thumbnail.frame.mid();
        json entry{{"point", json::array({centre.x, centre.y})}};
        if (const auto hit = AX::elementAt(centre)) {
            if (auto role = AX::string(*hit, AX::role)) entry["role"] = *role;
            if (auto subrole = AX::string(*hit, "AXSubrole")) entry["subrole"] = *subrole;
            Pid pid = 0;
            if (platform().accessibility.pid(*hit, pid) == AXError::success) entry["pid"] = pid;
            entry["hasWindow"] = AX::element(*hit, AX::windowAttribute).has_value();
            if (withTitles) {
                if (auto title = AX::string(*hit, "AXTitle")) entry["title"] = *title;
            }
        }
        list.push_back(std::move(entry));
    }
    return list;
}

// The regular applications' windows as the agent enumerates them to tie thumbnails.
json applicationWindows(bool withTitles) {
    WindowCatalog catalog;
    catalog.enumerate(platform().workspace.ownPid());
    json list = json::array();
    for (std::size_t i = 0; i < catalog.facts().size(); ++i) {
        const ThumbnailMatch::Window& window = catalog.facts()[i];
        json entry{{"pid", catalog.window(i).pid},
                   {"bundle", window.bundleIdentifier},
                   {"frame", rectangle(window.frame)}};
        if (withTitles) entry["title"] = window.title;
        list.push_back(std::move(entry));
    }
    return list;
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

Outcome write(const Request& request, json screens) {
    std::ofstream file(request.path, std::ios::binary | std::ios::trunc);
    if (!file) return Outcome::notWritten;
    file << snapshot(request.withTitles, std::move(screens)).dump(jsonIndent) << '\n';
    return file.good() ? Outcome::written : Outcome::notWritten;
}

void finish(const std::function<void(Outcome)>& done, Outcome outcome) {
    platform().executor.main().async([done, outcome] { done(outcome); });
}

// One wait of the capture on its queue: for Mission Control to open, then for its
// thumbnails to stand still. Each step counts down, so the wait ends however the clock moves.
struct Wait {
    std::shared_ptr<SerialQueue> queue;
    Request request;
    std::function<void(Outcome)> done;
    int pollsLeft = static_cast<int>(waitLimit / pollInterval);
    int settlesLeft = static_cast<int>(settleLimit / settleInterval);
    std::optional<std::vector<Rect>> lastFrames;
};

void step(std::shared_ptr<Wait> wait);

// The screen list is read on the main thread; the file is written back on the capture's queue.
void writeWithTheDisplays(std::shared_ptr<Wait> wait) {
    platform().executor.main().async([wait = std::move(wait)]() mutable {
        json screens = displays();
        SerialQueue& queue = *wait->queue;
        queue.async([wait = std::move(wait), screens = std::move(screens)] {
            finish(wait->done, write(wait->request, screens));
        });
    });
}

void again(std::shared_ptr<Wait> wait, double seconds) {
    SerialQueue& queue = *wait->queue;
    queue.after(seconds, [wait = std::move(wait)]() mutable { step(std::move(wait)); });
}

void step(std::shared_ptr<Wait> wait) {
    if (!wait->lastFrames) {
        if (MissionControlDetector::isMissionControlOpen()) {
            wait->lastFrames = ThumbnailReader().frames();
            again(std::move(wait), settleInterval);
        } else if (--wait->pollsLeft < 0) {
            finish(wait->done, Outcome::neverOpened);
        } else {
            again(std::move(wait), pollInterval);
        }
        return;
    }
    std::vector<Rect> frames = ThumbnailReader().frames();
    if (frames == *wait->lastFrames || --wait->settlesLeft <= 0) {
        writeWithTheDisplays(std::move(wait));
        return;
    }
    wait->lastFrames = std::move(frames);
    again(std::move(wait), settleInterval);
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

json displays() {
    json list = json::array();
    for (const ScreenDescription& screen : platform().screens.screens()) {
        json entry{{"frame", rectangle(screen.frame)},
                   {"visibleFrame", rectangle(screen.visibleFrame)},
                   {"scale", screen.backingScaleFactor}};
        if (screen.displayID) {
            entry["displayID"] = *screen.displayID;
            if (auto uuid = platform().windowServer.displayUUID(*screen.displayID))
                entry["uuid"] = *uuid;
        }
        list.push_back(std::move(entry));
    }
    return list;
}

json snapshot(bool withTitles, json screens) {
    const OperatingSystemVersion version = platform().systemInfo.operatingSystemVersion();
    const ThumbnailReader::Read read = ThumbnailReader().read();
    const MissionControlHost host = read.host.value_or(MissionControlHosts::forVersion(version));
    return {
        {"system", {{"major", version.major}, {"minor", version.minor}, {"patch", version.patch}}},
        {"missionControlHost",
         host == MissionControlHost::windowManager ? "WindowManager" : "Dock"},
        {"titles", withTitles},
        {"displays", std::move(screens)},
        {"thumbnails", thumbnails(read, withTitles)},
        {"hitTests", hitTests(read, withTitles)},
        {"applications", applicationWindows(withTitles)},
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
    if (!platform().accessibility.isProcessTrusted()) {
        finish(done, Outcome::notTrusted);
        return;
    }
    auto wait = std::make_shared<Wait>();
    wait->queue =
        platform().executor.makeQueue(std::string(queueLabel), QualityOfService::userInitiated);
    wait->request = request;
    wait->done = std::move(done);
    SerialQueue& first = *wait->queue;
    first.async([wait = std::move(wait)]() mutable { step(std::move(wait)); });
}

std::string message(Outcome outcome, const Request& request) {
    switch (outcome) {
        case Outcome::written:
            return "mission control: capture written to " + request.path;
        case Outcome::neverOpened:
            return "mission control: did not open within a minute, nothing written";
        case Outcome::notWritten:
            return "mission control: could not write " + request.path;
        case Outcome::notTrusted:
            return "mission control: no Accessibility permission (run from a terminal, the "
                   "terminal needs it), nothing written";
        case Outcome::noFile:
            break;
    }
    return "usage: Vistrel --capture-mission-control FILE [--with-titles]";
}

}  // namespace vistrel::MissionControlCapture
