#include "platform/sim/sim_dock.h"

#include <algorithm>
#include <cmath>

#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_thumbnail_layout.h"

namespace vistrel {

namespace {

// Window numbers of the Dock's own windows, far above those of application windows.
constexpr std::uint32_t barWindowNumber = 0x7000;
constexpr std::uint32_t firstMissionControlWindowNumber = 0x7100;
constexpr std::uint32_t firstFullScreenWindowNumber = 0x7200;
// The desktop the thumbnails of visible windows belong to, and the one of other windows.
constexpr std::string_view currentSpace = ".space.1";
constexpr std::string_view otherSpace = ".space.2";

std::map<std::string, AXValue> group(std::string_view identifier, std::vector<AXElement> children) {
    return {{"AXRole", std::string("AXGroup")},
            {"AXIdentifier", std::string(identifier)},
            {"AXChildren", std::move(children)}};
}

}  // namespace

SimDock::SimDock(SimDesktop& desktop) : desktop_(desktop) {
    SimAccessibility& accessibility = desktop_.accessibility();
    accessibility.hitTestOverride = [this](Point point) { return hitTest(point); };
    accessibility.onApplicationRead = [this](Pid pid) {
        if (pid == pid_ || (pid != 0 && pid == windowManagerPid_)) sync();
    };
    desktop_.eventTap().onPassed = [this](const InputEvent& event) {
        if (event.type == EventType::leftMouseUp) clicked(event.location);
        if (event.type == EventType::keyDown) {
            keyPosted(static_cast<std::uint16_t>(event.keyCode), true);
        }
    };
}

Pid SimDock::launch() {
    if (isRunning()) return pid_;
    SimApplication dock;
    dock.bundleIdentifier = std::string(bundleIdentifier);
    dock.name = std::string(name);
    dock.activationPolicy = ActivationPolicy::accessory;
    pid_ = desktop_.addApplication(std::move(dock));
    SimAccessibility& accessibility = desktop_.accessibility();
    barNode_ = accessibility.addNode(pid_, {{"AXRole", std::string("AXList")}});
    accessibility.applicationChildren[pid_] = {accessibility.nodeElement(barNode_)};
    publishWindows();
    return pid_;
}

void SimDock::quit() {
    if (!isRunning()) return;
    close();
    desktop_.accessibility().removeNode(barNode_);
    desktop_.accessibility().applicationChildren.erase(pid_);
    desktop_.removeApplication(pid_);
    pid_ = 0;
    publishWindows();
}

Pid SimDock::restart() {
    quit();
    return launch();
}

bool SimDock::hostedByWindowManager() const {
    return desktop_.systemInfo().runningMajor() >= firstWindowManagerMajor;
}

Pid SimDock::hostPid() const {
    return hostedByWindowManager() ? windowManagerPid_ : pid_;
}

void SimDock::launchWindowManager() {
    if (windowManagerPid_ != 0 && desktop_.application(windowManagerPid_)) return;
    SimApplication windowManager;
    windowManager.bundleIdentifier = std::string(windowManagerBundleIdentifier);
    windowManager.name = std::string(windowManagerName);
    windowManager.activationPolicy = ActivationPolicy::accessory;
    windowManagerPid_ = desktop_.addApplication(std::move(windowManager));
}

void SimDock::open() {
    launch();
    if (hostedByWindowManager()) {
        launchWindowManager();
        fullScreenWindowShown_ = true;
    }
    open_ = true;
    rebuild(visibleWindows());
    publishWindows();
}

void SimDock::openAppExpose() {
    appExpose_ = true;
    open();
}

void SimDock::close() {
    if (!open_) return;
    open_ = false;
    appExpose_ = false;
    removeTree();
    publishWindows();
}

const std::vector<SimThumbnail>& SimDock::thumbnails() {
    sync();
    return thumbnails_;
}

std::optional<SimThumbnail> SimDock::thumbnailAt(Point point) {
    for (const SimThumbnail& thumbnail : thumbnails()) {
        if (thumbnail.frame.contains(point)) return thumbnail;
    }
    return std::nullopt;
}

void SimDock::keyPosted(std::uint16_t keyCode, bool down) {
    if (down && keyCode == escapeKeyCode) close();
}

void SimDock::clicked(Point point) {
    if (!open_) return;
    if (auto thumbnail = thumbnailAt(point)) desktop_.bringToFront(thumbnail->window);
    close();
}

Rect SimDock::thumbnailArea(Rect screen) {
    return {screen.minX() + sideMargin, screen.minY() + spacesBarHeight,
            screen.width - 2 * sideMargin,
            screen.height - spacesBarHeight - simDockHeight - bottomMargin};
}

std::vector<SimDock::Shown> SimDock::visibleWindows() const {
    const std::vector<Rect> screens = desktop_.accessibilityScreenFrames();
    std::vector<Shown> shown;
    for (const SimWindow& window : desktop_.windows()) {
        if (!desktop_.isOnScreen(window) || window.layer != 0 || window.fullScreen) continue;
        std::size_t screen = 0;
        for (std::size_t i = 0; i < screens.size(); ++i) {
            if (screens[i].contains(window.frame.mid())) screen = i;
        }
        shown.push_back({window.id, window.frame, screen});
    }
    return shown;
}

void SimDock::sync() {
    if (!open_) return;
    const auto shown = visibleWindows();
    if (shown != laidOutFrom_ || desktop_.accessibilityScreenFrames() != laidOutScreens_) {
        rebuild(shown);
    }
}

void SimDock::rebuild(const std::vector<Shown>& shown) {
    removeTree();
    SimAccessibility& accessibility = desktop_.accessibility();
    laidOutFrom_ = shown;
    laidOutScreens_ = desktop_.accessibilityScreenFrames();
    std::vector<AXElement> displays;
    for (std::size_t screen = 0; screen < laidOutScreens_.size() && !treeEmpty; ++screen) {
        const SimNodeId display = makeDisplay(screen, laidOutScreens_[screen], shown);
        displayNodes_.push_back(display);
        displays.push_back(accessibility.nodeElement(display));
    }
    setHostChildren(std::move(displays));
}

// Up to macOS 26 the displays hang under the Dock's "mc" group; from 27 that group stays
// empty and the displays are WindowManager's own children.
void SimDock::setHostChildren(std::vector<AXElement> displays) {
    SimAccessibility& accessibility = desktop_.accessibility();
    const bool windowManager = hostedByWindowManager();
    missionControlNode_ =
        accessibility.addNode(pid_, group(appExpose_ ? "appexpose" : "mc",
                                          windowManager ? std::vector<AXElement>{} : displays));
    treeNodes_.push_back(missionControlNode_);
    accessibility.applicationChildren[pid_] = {accessibility.nodeElement(barNode_),
                                               accessibility.nodeElement(missionControlNode_)};
    if (windowManager) accessibility.applicationChildren[windowManagerPid_] = std::move(displays);
}

AXElement SimDock::thumbnailNode(std::map<std::string, AXValue> attributes) {
    SimAccessibility& accessibility = desktop_.accessibility();
    attributes["AXRole"] = std::string("AXButton");
    const SimNodeId node = accessibility.addNode(hostPid(), std::move(attributes));
    treeNodes_.push_back(node);
    return accessibility.nodeElement(node);
}

// Other desktops' thumbnails, each shifted over one of the visible ones.
std::vector<AXElement> SimDock::otherDesktopThumbnails(const std::vector<Rect>& visible) {
    std::vector<AXElement> thumbnails;
    for (std::size_t i = 0; i < otherDesktop.size() && !visible.empty(); ++i) {
        const SimOtherDesktopWindow& window = otherDesktop[i];
        Rect frame = visible[i % visible.size()];
        frame.x += otherDesktopOffset;
        frame.y += otherDesktopOffset;
        thumbnails.push_back(
            thumbnailNode({{"AXTitle", window.title},
                           {"AXFrame", frame},
                           {"AXIdentifier", window.bundleIdentifier + std::string(otherSpace)}}));
        if (thumbnailsNameWindows) {
            desktop_.accessibility().setNodeAttribute(treeNodes_.back(), "wid",
                                                      static_cast<std::int64_t>(window.number));
        }
    }
    return thumbnails;
}

SimNodeId SimDock::makeDisplay(std::size_t screen, Rect frame, const std::vector<Shown>& shown) {
    SimAccessibility& accessibility = desktop_.accessibility();
    std::vector<Size> sizes;
    std::vector<SimWindowId> ids;
    for (const Shown& window : shown) {
        if (window.screen != screen) continue;
        sizes.push_back(window.frame.size());
        ids.push_back(window.window);
    }
    const std::vector<Rect> frames = SimThumbnailLayout::layOut(sizes, thumbnailArea(frame));
    const bool windowManager = hostedByWindowManager();
    std::vector<AXElement> thumbnails;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const SimWindow* window = desktop_.window(ids[i]);
        std::map<std::string, AXValue> attributes{{"AXFrame", frames[i]}};
        const std::string title = window->serverTitle.value_or(window->title);
        if (!title.empty()) attributes["AXTitle"] = title;
        if (windowManager) {
            const SimApplication* app = desktop_.application(window->pid);
            attributes["AXIdentifier"] =
                (app ? app->bundleIdentifier : std::string()) + std::string(currentSpace);
            if (thumbnailsNameWindows) attributes["wid"] = static_cast<std::int64_t>(window->id);
        }
        thumbnails.push_back(thumbnailNode(std::move(attributes)));
        thumbnailNodes_.emplace_back(ids[i], treeNodes_.back());
        thumbnails_.push_back({ids[i], frames[i]});
    }
    const SimNodeId spaces = accessibility.addNode(hostPid(), group("mc.spaces", {}));
    treeNodes_.push_back(spaces);
    std::vector<AXElement> children;
    if (windowManager) {
        // As macOS 27 lists them: the thumbnails first, other desktops' (shown on the
        // first display) after them, the desktops' group last.
        children = std::move(thumbnails);
        if (screen == 0) {
            const auto others = otherDesktopThumbnails(frames);
            children.insert(children.end(), others.begin(), others.end());
        }
        children.push_back(accessibility.nodeElement(spaces));
    } else {
        const SimNodeId windows = accessibility.addNode(pid_, group("mc.windows", thumbnails));
        treeNodes_.push_back(windows);
        children = {accessibility.nodeElement(spaces), accessibility.nodeElement(windows)};
    }
    auto display = group("mc.display", std::move(children));
    display["AXFrame"] = frame;
    const SimNodeId node = accessibility.addNode(hostPid(), std::move(display));
    treeNodes_.push_back(node);
    return node;
}

void SimDock::removeTree() {
    SimAccessibility& accessibility = desktop_.accessibility();
    for (SimNodeId node : treeNodes_)
        accessibility.removeNode(node);
    treeNodes_.clear();
    displayNodes_.clear();
    thumbnailNodes_.clear();
    thumbnails_.clear();
    laidOutFrom_.clear();
    laidOutScreens_.clear();
    missionControlNode_ = 0;
    if (isRunning()) {
        accessibility.applicationChildren[pid_] = {accessibility.nodeElement(barNode_)};
    }
    if (windowManagerPid_ != 0) accessibility.applicationChildren.erase(windowManagerPid_);
}

void SimDock::publishWindows() {
    auto& list = desktop_.windowServer().frontWindows;
    if (publishedPid_ != 0) {
        std::erase_if(list,
                      [this](const WindowDescription& w) { return w.ownerPid == publishedPid_; });
    }
    publishedPid_ = pid_;
    if (!isRunning()) return;
    const std::vector<Rect> screens = desktop_.accessibilityScreenFrames();
    std::vector<WindowDescription> own;
    for (std::size_t i = 0; i < screens.size(); ++i) {
        const auto index = static_cast<std::uint32_t>(i);
        if (open_ && !hostedByWindowManager()) {
            own.push_back({firstMissionControlWindowNumber + index, pid_, std::string(name),
                           std::nullopt, missionControlLayer, screens[i]});
        }
        if (fullScreenWindowShown_) {
            own.push_back({firstFullScreenWindowNumber + index, pid_, std::string(name),
                           std::nullopt, barLayer, screens[i]});
        }
    }
    const Rect primary = screens.front();
    own.push_back(
        {barWindowNumber, pid_, std::string(name), std::string(name), barLayer,
         Rect{primary.minX(), primary.maxY() - simDockHeight, primary.width, simDockHeight}});
    list.insert(list.begin(), own.begin(), own.end());
}

std::optional<AXElement> SimDock::hitTest(Point point) {
    if (!open_) return std::nullopt;
    if (auto thumbnail = thumbnailAt(point)) {
        if (!hostedByWindowManager() && !hitTestAnswersThumbnail) {
            return windowPartAt(*thumbnail, point);
        }
        for (const auto& [window, node] : thumbnailNodes_) {
            if (window == thumbnail->window) return desktop_.accessibility().nodeElement(node);
        }
    }
    // An empty tree has no display group to answer with.
    for (std::size_t i = 0; i < laidOutScreens_.size() && i < displayNodes_.size(); ++i) {
        if (laidOutScreens_[i].contains(point)) {
            return desktop_.accessibility().nodeElement(displayNodes_[i]);
        }
    }
    return std::nullopt;
}

// The part of the window a point over its thumbnail stands for: its title in the scaled
// title bar, the window itself elsewhere.
AXElement SimDock::windowPartAt(const SimThumbnail& thumbnail, Point point) {
    SimAccessibility& accessibility = desktop_.accessibility();
    const SimWindow& window = *desktop_.window(thumbnail.window);
    const double scale = thumbnail.frame.height / window.frame.height;
    const double titleBar = SimAccessibility::titleBarHeight * scale;
    if (point.y < thumbnail.frame.minY() + titleBar) {
        return accessibility.partElement(window.id, SimWindowPart::title);
    }
    return accessibility.windowElement(window.id);
}

}  // namespace vistrel
