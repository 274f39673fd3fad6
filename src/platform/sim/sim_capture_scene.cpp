#include "platform/sim/sim_capture_scene.h"

#include <cctype>
#include <map>
#include <optional>
#include <vector>

#include <nlohmann/json.hpp>

#include "platform/sim/sim_desktop.h"

namespace vistrel {

namespace {

using nlohmann::json;

constexpr std::string_view spaceSuffix = ".space.";

struct CapturedNode {
    SimNodeId id = 0;
    Rect frame;
    int level = 0;
};

std::optional<Rect> rectangleOf(const json& value) {
    if (!value.is_array() || value.size() != 4) return std::nullopt;
    for (const json& number : value) {
        if (!number.is_number()) return std::nullopt;
    }
    return Rect{value[0].get<double>(), value[1].get<double>(), value[2].get<double>(),
                value[3].get<double>()};
}

// Titles and bundle identifiers the captured thumbnails give each window number.
struct ThumbnailFacts {
    std::map<std::uint32_t, std::string> titles;
    std::map<std::uint32_t, std::string> bundles;

    void gather(const json& node) {
        if (node.contains("wid") && node["wid"].is_number_unsigned()) {
            const auto number = node["wid"].get<std::uint32_t>();
            if (node.contains("title") && node["title"].is_string()) titles[number] = node["title"];
            if (node.contains("identifier") && node["identifier"].is_string()) {
                const std::string identifier = node["identifier"];
                const auto space = identifier.rfind(spaceSuffix);
                if (space != std::string::npos) bundles[number] = identifier.substr(0, space);
            }
        }
        if (node.contains("children")) {
            for (const json& child : node["children"])
                gather(child);
        }
    }
};

class CaptureLoader {
  public:
    explicit CaptureLoader(SimDesktop& desktop) : desktop_(desktop) {}

    void load(const json& capture) {
        const json& system = capture.at("system");
        desktop_.systemInfo().version = {system.value("major", 0), system.value("minor", 0),
                                         system.value("patch", 0)};
        for (const char* process : {"dock", "windowManager"}) {
            if (capture.contains(process) && capture[process].is_object()) {
                for (const json& group : capture[process].value("groups", json::array()))
                    facts_.gather(group);
            }
        }
        enumerated_ = capture.value("applications", json::array());
        addDisplays(capture.value("displays", json::array()));
        addApplications(capture.at("windows"));
        addProcessTree(capture, "dock", "com.apple.dock", "Dock");
        addProcessTree(capture, "windowManager", "com.apple.WindowManager", "WindowManager");
        recordHitTests(capture.value("hitTests", json::array()));
        answerHitTests();
    }

  private:
    // The captured displays in place of the empty desktop's one, when the capture has them:
    // their numbers, UUIDs and frames (AppKit's coordinates), as the capture tool read them
    // from NSScreen and CGDisplayCreateUUIDFromDisplayID on the user's Mac.
    void addDisplays(const json& displays) {
        std::vector<ScreenDescription> screens;
        for (const json& entry : displays) {
            const auto frame = rectangleOf(entry.value("frame", json()));
            if (!frame) continue;
            ScreenDescription screen;
            screen.frame = *frame;
            screen.visibleFrame = rectangleOf(entry.value("visibleFrame", json())).value_or(*frame);
            if (entry.contains("scale") && entry["scale"].is_number())
                screen.backingScaleFactor = entry["scale"].get<double>();
            if (entry.contains("displayID") && entry["displayID"].is_number_unsigned()) {
                const auto number = entry["displayID"].get<std::uint32_t>();
                screen.displayID = number;
                if (entry.contains("uuid") && entry["uuid"].is_string())
                    desktop_.windowServer().displayUUIDs[number] = entry["uuid"].get<std::string>();
            }
            screens.push_back(std::move(screen));
        }
        if (!screens.empty()) desktop_.screens() = std::move(screens);
    }

    void addApplications(const json& windows) {
        std::map<Pid, Pid> pids;
        // The list runs front to back and a new simulated window opens in front: add the
        // windows from the back.
        for (auto it = windows.rbegin(); it != windows.rend(); ++it) {
            const json& entry = *it;
            const auto bounds = rectangleOf(entry.value("bounds", json()));
            const Pid pid = entry.value("pid", 0);
            const std::string owner = entry.value("owner", std::string());
            if (owner == "Dock" || owner == "WindowManager" || entry.value("layer", 0) != 0 ||
                !bounds) {
                keepAsListed(entry, bounds);
                continue;
            }
            if (!pids.contains(pid)) pids[pid] = addApplication(pid, owner);
            const auto number = entry.value("number", 0u);
            SimWindow window;
            window.frame = *bounds;
            if (facts_.titles.contains(number)) window.title = facts_.titles[number];
            if (auto title = enumeratedTitle(pid, *bounds)) window.title = *title;
            windowIds_[number] = desktop_.addWindow(pids[pid], std::move(window));
        }
    }

    Pid addApplication(Pid pid, const std::string& owner) {
        SimApplication application;
        application.pid = pid;
        application.name = owner;
        application.bundleIdentifier = "captured." + owner;
        for (const auto& entry : facts_.bundles) {
            if (ownerOfBundleMatches(entry.second, owner))
                application.bundleIdentifier = entry.second;
        }
        for (const json& window : enumerated_) {
            if (window.value("pid", 0) == pid && window.contains("bundle") &&
                window["bundle"].is_string()) {
                application.bundleIdentifier = window["bundle"].get<std::string>();
            }
        }
        return desktop_.addApplication(std::move(application));
    }

    // A bundle identifier belongs to the owner when its last component names it.
    static bool ownerOfBundleMatches(const std::string& bundle, const std::string& owner) {
        const auto dot = bundle.rfind('.');
        const std::string last = dot == std::string::npos ? bundle : bundle.substr(dot + 1);
        if (last.size() != owner.size()) return false;
        for (std::size_t i = 0; i < last.size(); ++i) {
            if (std::tolower(static_cast<unsigned char>(last[i])) !=
                std::tolower(static_cast<unsigned char>(owner[i]))) {
                return false;
            }
        }
        return true;
    }

    void keepAsListed(const json& entry, std::optional<Rect> bounds) {
        WindowDescription description;
        if (entry.contains("number")) description.number = entry["number"].get<std::uint32_t>();
        if (entry.contains("pid")) description.ownerPid = entry["pid"].get<Pid>();
        if (entry.contains("owner")) description.ownerName = entry["owner"].get<std::string>();
        if (entry.contains("layer")) description.layer = entry["layer"].get<std::int64_t>();
        description.bounds = bounds;
        auto& front = desktop_.windowServer().frontWindows;
        front.insert(front.begin(), description);
    }

    void addProcessTree(const json& capture, const char* key, const char* bundle,
                        const char* name) {
        if (!capture.contains(key) || !capture[key].is_object()) return;
        const json& process = capture[key];
        SimApplication application;
        application.pid = process.value("pid", 0);
        application.bundleIdentifier = bundle;
        application.name = name;
        application.activationPolicy = ActivationPolicy::accessory;
        if (desktop_.application(application.pid) != nullptr) application.pid = 0;
        const Pid pid = desktop_.addApplication(std::move(application));
        std::vector<AXElement> groups;
        for (const json& group : process.value("groups", json::array()))
            groups.push_back(addNode(pid, group, 1));
        desktop_.accessibility().applicationChildren[pid] = std::move(groups);
    }

    // The attributes the capture recorded with their values, as far as a value can be told
    // from its JSON: texts, flags, numbers, and rectangles, points and sizes by their names.
    // The named fields ("frame", "wid"…) are read after these and win.
    static std::map<std::string, AXValue> recorded(const json& all) {
        std::map<std::string, AXValue> attributes;
        if (!all.is_object()) return attributes;
        for (const auto& [name, value] : all.items()) {
            if (value.is_string()) attributes[name] = value.get<std::string>();
            if (value.is_boolean()) attributes[name] = value.get<bool>();
            if (value.is_number_integer()) attributes[name] = value.get<std::int64_t>();
            if (value.is_number_float()) attributes[name] = value.get<double>();
            if (auto rect = rectangleOf(value)) attributes[name] = *rect;
            if (value.is_array() && value.size() == 2 && value[0].is_number() &&
                value[1].is_number()) {
                const double a = value[0].get<double>();
                const double b = value[1].get<double>();
                if (name == "AXPosition") attributes[name] = Point{a, b};
                if (name == "AXSize") attributes[name] = Size{a, b};
            }
        }
        return attributes;
    }

    AXElement addNode(Pid owner, const json& node, int level) {
        SimAccessibility& accessibility = desktop_.accessibility();
        std::map<std::string, AXValue> attributes = recorded(node.value("attributes", json()));
        const std::pair<const char*, const char*> texts[] = {{"role", "AXRole"},
                                                             {"subrole", "AXSubrole"},
                                                             {"identifier", "AXIdentifier"},
                                                             {"title", "AXTitle"}};
        for (const auto& [key, attribute] : texts) {
            if (node.contains(key) && node[key].is_string()) {
                attributes[attribute] = node[key].get<std::string>();
            }
        }
        const auto frame = rectangleOf(node.value("frame", json()));
        if (frame) attributes["AXFrame"] = *frame;
        if (node.contains("wid") && node["wid"].is_number_unsigned()) {
            const auto number = node["wid"].get<std::uint32_t>();
            const auto mapped = windowIds_.find(number);
            attributes["wid"] =
                static_cast<std::int64_t>(mapped == windowIds_.end() ? number : mapped->second);
        }
        std::vector<AXElement> children;
        for (const json& child : node.value("children", json::array()))
            children.push_back(addNode(owner, child, level + 1));
        if (!children.empty()) attributes["AXChildren"] = std::move(children);
        const SimNodeId id = accessibility.addNode(owner, std::move(attributes));
        if (frame) nodes_.push_back({id, *frame, level});
        return accessibility.nodeElement(id);
    }

    // The title the agent read of the window of this process at these bounds, when the
    // capture enumerated the applications' windows with their titles.
    std::optional<std::string> enumeratedTitle(Pid pid, Rect bounds) const {
        for (const json& window : enumerated_) {
            if (window.value("pid", 0) == pid &&
                rectangleOf(window.value("frame", json())) == bounds && window.contains("title") &&
                window["title"].is_string()) {
                return window["title"].get<std::string>();
            }
        }
        return std::nullopt;
    }

    // Where the captured hit-test answered with an application's window, the replay answers
    // with the simulated window it stands for: the one of that process (with that title when
    // the capture kept it), when exactly one fits.
    void recordHitTests(const json& hitTests) {
        for (const json& hit : hitTests) {
            const json point = hit.value("point", json());
            if (!point.is_array() || point.size() != 2 || !hit.value("hasWindow", false)) continue;
            const Pid pid = hit.value("pid", 0);
            std::optional<SimWindowId> found;
            int fits = 0;
            for (const SimWindow& window : desktop_.windows()) {
                if (window.pid != pid) continue;
                if (hit.contains("title") && hit["title"] != window.title) continue;
                found = window.id;
                ++fits;
            }
            if (fits == 1) {
                windowHits_.push_back({{point[0].get<double>(), point[1].get<double>()}, *found});
            }
        }
    }

    // The override outlives the loader: it keeps its own copy of the nodes and answers.
    void answerHitTests() {
        SimAccessibility* accessibility = &desktop_.accessibility();
        accessibility->hitTestOverride = [accessibility, nodes = nodes_, windows = windowHits_](
                                             Point point) -> std::optional<AXElement> {
            for (const auto& [at, window] : windows) {
                if (at == point) return accessibility->windowElement(window);
            }
            const CapturedNode* best = nullptr;
            for (const CapturedNode& node : nodes) {
                if (!node.frame.contains(point)) continue;
                if (!best || node.level > best->level ||
                    (node.level == best->level && node.frame.area() < best->frame.area())) {
                    best = &node;
                }
            }
            if (!best) return std::nullopt;
            return accessibility->nodeElement(best->id);
        };
    }

    SimDesktop& desktop_;
    ThumbnailFacts facts_;
    std::map<std::uint32_t, SimWindowId> windowIds_;
    std::vector<CapturedNode> nodes_;
    json enumerated_;
    std::vector<std::pair<Point, SimWindowId>> windowHits_;
};

}  // namespace

bool loadCapturedScene(SimDesktop& desktop, const std::string& text, std::string& error) {
    const json capture = json::parse(text, nullptr, false);
    if (capture.is_discarded() || !capture.is_object()) {
        error = "not a JSON object";
        return false;
    }
    if (!capture.contains("system") || !capture["system"].is_object() ||
        !capture.contains("windows") || !capture["windows"].is_array()) {
        error = "no \"system\" or \"windows\"";
        return false;
    }
    try {
        CaptureLoader(desktop).load(capture);
    } catch (const json::exception& failure) {
        error = failure.what();
        return false;
    }
    return true;
}

}  // namespace vistrel
