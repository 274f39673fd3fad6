#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_dock.h"
#include "tracking/thumbnail_match.h"
#include "tracking/thumbnail_reader.h"
#include "tracking/thumbnail_targets.h"

namespace vistrel::fuzz {

// Reads arbitrary bytes as a desktop and a Mission Control tree under the Dock and under
// WindowManager: windows of three applications with titles that begin with one another,
// and nodes of any depth carrying any identifier, title, frame and "wid" (of any type).
class ThumbnailTreeReader {
  public:
    explicit ThumbnailTreeReader(std::string_view bytes) : bytes_(bytes) {}

    void build(SimDesktop& desktop) {
        desktop.systemInfo().version.major = take() % 2 == 0 ? 26 : 27;
        desktop.dock().launch();
        SimApplication manager;
        manager.bundleIdentifier = std::string(SimDock::windowManagerBundleIdentifier);
        manager.activationPolicy = ActivationPolicy::accessory;
        const Pid managerPid = desktop.addApplication(manager);
        std::map<std::string, Pid> pids;
        for (std::string_view bundle : bundles) {
            SimApplication app;
            app.bundleIdentifier = std::string(bundle);
            pids[app.bundleIdentifier] = desktop.addApplication(app);
        }
        const std::size_t windows = take() % 8;
        for (std::size_t i = 0; i < windows; ++i) {
            SimWindow window;
            window.title = std::string(titles[take() % titles.size()]);
            window.frame = frame();
            const std::string bundle(bundles[take() % bundles.size()]);
            windowIds_.push_back(desktop.addWindow(pids[bundle], window));
        }
        SimAccessibility& ax = desktop.accessibility();
        ax.applicationChildren[desktop.dock().pid()] = nodes(desktop, desktop.dock().pid(), 0);
        ax.applicationChildren[managerPid] = nodes(desktop, managerPid, 0);
    }

  private:
    static constexpr std::array<std::string_view, 3> bundles{"com.a", "com.b", "com.c"};
    static constexpr int deepest = 4;
    static constexpr std::array<std::string_view, 6> titles{
        "", "Notes", "Notes 2", "Doc", "Doc - Browser - Work", "N"};
    // The identifiers a level of a real tree carries, most often first, so that random
    // bytes reach the thumbnails as often as they stray.
    static constexpr std::size_t choices = 4;
    static constexpr std::string_view identifiers[deepest][choices] = {
        {"mc", "mc.display", "appexpose", "com.a.space.1"},
        {"mc.display", "com.a.space.1", "com.b.space.2", "mc.spaces"},
        {"mc.windows", "com.c.space.1", "com.a.space.x", "mc"},
        {"com.a.space.1", "com.b.space.2", "com.c.space.3", "mc.windows"},
    };
    static constexpr std::size_t widest = 6;

    std::uint8_t take() { return at_ < bytes_.size() ? std::uint8_t(bytes_[at_++]) : 0; }
    Rect frame() {
        return {double(take()) * 8, double(take()) * 4, double(take()) * 8, double(take()) * 6};
    }
    // A thumbnail's frame: half the time a window's scaled to a quarter, as Mission Control
    // would draw it, else anything.
    Rect thumbnailFrame(SimDesktop& desktop) {
        if (take() % 2 == 0 || windowIds_.empty()) return frame();
        const Rect window = desktop.window(windowIds_[take() % windowIds_.size()])->frame;
        constexpr double scale = 0.25;
        return {double(take()) * 4, double(take()) * 2, window.width * scale,
                window.height * scale};
    }

    std::vector<AXElement> nodes(SimDesktop& desktop, Pid owner, int depth) {
        SimAccessibility& ax = desktop.accessibility();
        std::vector<AXElement> made;
        const std::size_t count = depth < deepest ? take() % widest : 0;
        for (std::size_t i = 0; i < count && at_ < bytes_.size(); ++i) {
            made.push_back(ax.nodeElement(ax.addNode(owner, attributes(desktop, owner, depth))));
        }
        return made;
    }

    // Each attribute is there unless a bit of one byte says otherwise; a frame of the wrong
    // type or a "wid" come on rarer bits.
    std::map<std::string, AXValue> attributes(SimDesktop& desktop, Pid owner, int depth) {
        std::map<std::string, AXValue> made{{"AXRole", std::string("AXButton")}};
        const std::uint8_t lacks = take();
        const auto& level = identifiers[depth];
        if (!(lacks & 1)) made["AXIdentifier"] = std::string(level[take() % choices]);
        if (!(lacks & 2)) made["AXTitle"] = std::string(titles[take() % titles.size()]);
        if (!(lacks & 4)) made["AXFrame"] = thumbnailFrame(desktop);
        if ((lacks & 24) == 24) made["AXFrame"] = std::string("not a frame");
        if (lacks & 32) made["wid"] = number();
        if (!(lacks & 64)) made["AXChildren"] = nodes(desktop, owner, depth + 1);
        return made;
    }

    AXValue number() {
        const std::uint8_t pick = take();
        const std::int64_t id =
            windowIds_.empty() ? pick : std::int64_t(windowIds_[pick % windowIds_.size()]);
        switch (pick % 4) {
            case 0:
                return id;
            case 1:
                return double(id) + (pick % 8 == 1 ? 0.5 : 0.0);
            case 2:
                return std::int64_t{-1} * id;
            default:
                return std::to_string(id);
        }
    }

    std::string_view bytes_;
    std::size_t at_ = 0;
    std::vector<SimWindowId> windowIds_;
};

// The bundle identifier of the application owning a window.
inline std::string bundleOf(SimDesktop& desktop, const SimWindow& window) {
    const SimApplication* app = desktop.application(window.pid);
    return app ? app->bundleIdentifier : std::string();
}

// Whether some thumbnail containing the point shows this window by what it carries: its
// number, or its title and shape (and application, where its identifier names one).
inline bool someThumbnailShows(SimDesktop& desktop,
                               const std::vector<MissionControlThumbnail>& read, Point point,
                               const SimWindow& window) {
    for (const MissionControlThumbnail& thumbnail : read) {
        if (!thumbnail.frame.contains(point)) continue;
        if (thumbnail.window != 0) {
            if (thumbnail.window == window.id) return true;
            continue;
        }
        const auto bundle = thumbnail.identifier
                                ? ThumbnailMatch::bundleOfIdentifier(*thumbnail.identifier)
                                : std::nullopt;
        if (bundle && *bundle != bundleOf(desktop, window)) continue;
        if (!ThumbnailMatch::sameShape(thumbnail.frame, window.frame)) continue;
        const std::string title = thumbnail.title.value_or("");
        if (title.empty() ? bundle.has_value() : window.title.starts_with(title)) return true;
    }
    return false;
}

// What reading Mission Control promises for any tree: no crash or hang, counts that add
// up, and a window under a thumbnail only when a thumbnail there shows that very window.
inline bool readingKeepsItsPromise(std::string_view bytes) {
    SimDesktop desktop;
    ScopedPlatform installed{desktop};
    ThumbnailTreeReader(bytes).build(desktop);
    ThumbnailReader reader;
    const ThumbnailReader::Read read = reader.read();
    ThumbnailTargets targets;
    const auto thumbnails = read.thumbnails;
    const MissionControlReading reading = targets.update(1, read, desktop.ownPid);
    if (std::size_t(reading.thumbnails) != thumbnails.size()) return false;
    if (reading.mapped + reading.refusals > reading.thumbnails) return false;
    for (const MissionControlThumbnail& thumbnail : thumbnails) {
        const Point centre = thumbnail.frame.mid();
        const auto hit = targets.at(centre, 1);
        if (!hit) continue;
        bool shown = false;
        for (const SimWindow& window : desktop.windows()) {
            if (hit->window != desktop.accessibility().windowElement(window.id)) continue;
            shown =
                hit->pid == window.pid && someThumbnailShows(desktop, thumbnails, centre, window);
        }
        if (!shown) return false;
    }
    return true;
}

}  // namespace vistrel::fuzz
