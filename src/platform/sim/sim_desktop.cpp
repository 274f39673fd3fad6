#include "platform/sim/sim_desktop.h"

#include <algorithm>

namespace vistrel {

namespace {
constexpr std::uint32_t firstDisplayID = 1;

constexpr std::string_view builtInDisplayName = "Built-in Retina Display";
constexpr std::string_view externalDisplayName = "Studio Display";

ScreenDescription screenAt(Rect frame, std::uint32_t displayID) {
    Rect visible = frame;
    visible.height -= simMenuBarHeight + simDockHeight;
    visible.y += simDockHeight;  // AppKit: the Dock is at the bottom, y grows upwards
    const std::string_view name =
        displayID == firstDisplayID ? builtInDisplayName : externalDisplayName;
    return {frame, visible, displayID, 2, std::string(name)};
}
}  // namespace

SimDesktop::SimDesktop()
    : executor_(clock_),
      accessibility_(*this),
      windowServer_(*this),
      workspace_(*this),
      defaults_(bundle.identifier),
      windowHost_(&executor_),
      screenList_(*this),
      uploader_(executor_),
      platform_{.accessibility = accessibility_,
                .windowServer = windowServer_,
                .workspace = workspace_,
                .screens = screenList_,
                .displayWatch = displayWatch_,
                .defaults = defaults_,
                .eventTap = eventTap_,
                .executor = executor_,
                .clock = clock_,
                .systemLog = systemLog_,
                .loginItem = loginItem_,
                .windowHost = windowHost_,
                .text = text_,
                .notifications = notifications_,
                .updates = updates_,
                .application = application_,
                .systemInfo = systemInfo_,
                .infoDictionary = infoDictionary_,
                .files = files_,
                .alert = alert_,
                .reportDialog = reportDialog_,
                .savePanel = savePanel_,
                .pasteboard = pasteboard_,
                .archiver = archiver_,
                .uploader = uploader_,
                .fonts = fonts_,
                .statusBar = statusBar_,
                .panels = panels_,
                .eventMonitors = eventMonitors_,
                .menus = menus_,
                .appearance = appearance_,
                .launch = launch_,
                .processes = processes_,
                .scripts = scripts_,
                .fileWriter = fileWriter_},
      dock_(*this) {
    screens_.push_back(screenAt(simPrimaryScreen, firstDisplayID));
}

SimDesktop::~SimDesktop() = default;

Pid SimDesktop::addApplication(SimApplication application) {
    if (application.pid == 0) application.pid = nextPid_++;
    const Pid pid = application.pid;
    applications_.push_back(std::move(application));
    return pid;
}

SimApplication* SimDesktop::application(Pid pid) {
    auto found = std::find_if(applications_.begin(), applications_.end(),
                              [pid](const SimApplication& app) { return app.pid == pid; });
    return found == applications_.end() ? nullptr : &*found;
}

void SimDesktop::removeApplication(Pid pid) {
    for (SimWindowId id : windowsOf(pid))
        closeWindow(id);
    std::erase_if(applications_, [pid](const SimApplication& app) { return app.pid == pid; });
}

SimWindowId SimDesktop::addWindow(Pid pid, SimWindow window) {
    window.id = nextWindowId_++;
    window.pid = pid;
    windows_.insert(windows_.begin(), window);
    return window.id;
}

SimWindow* SimDesktop::window(SimWindowId id) {
    auto found = std::find_if(windows_.begin(), windows_.end(),
                              [id](const SimWindow& w) { return w.id == id; });
    return found == windows_.end() ? nullptr : &*found;
}

std::vector<SimWindowId> SimDesktop::windowsOf(Pid pid) const {
    std::vector<SimWindowId> ids;
    for (const SimWindow& w : windows_) {
        if (w.pid == pid && !w.closed) ids.push_back(w.id);
    }
    return ids;
}

void SimDesktop::bringToFront(SimWindowId id) {
    auto found = std::find_if(windows_.begin(), windows_.end(),
                              [id](const SimWindow& w) { return w.id == id; });
    if (found != windows_.end()) std::rotate(windows_.begin(), found, found + 1);
}

void SimDesktop::bringApplicationToFront(Pid pid) {
    std::stable_partition(windows_.begin(), windows_.end(),
                          [pid](const SimWindow& w) { return w.pid == pid; });
}

void SimDesktop::closeWindow(SimWindowId id) {
    if (SimWindow* w = window(id)) w->closed = true;
}

bool SimDesktop::isOnScreen(const SimWindow& window) const {
    if (window.closed || window.minimized) return false;
    auto app = std::find_if(applications_.begin(), applications_.end(),
                            [&](const SimApplication& a) { return a.pid == window.pid; });
    return app == applications_.end() || (!app->hidden && !app->terminated);
}

std::optional<SimWindowId> SimDesktop::windowAt(Point point) const {
    for (const SimWindow& w : windows_) {
        if (isOnScreen(w) && w.frame.contains(point)) return w.id;
    }
    return std::nullopt;
}

void SimDesktop::addScreenToTheRight(Size size) {
    addScreenToTheRight(size, firstDisplayID + static_cast<std::uint32_t>(screens_.size()));
}

void SimDesktop::addScreenToTheRight(Size size, std::uint32_t displayID) {
    const Rect& last = screens_.back().frame;
    const Rect frame{last.maxX(), last.maxY() - size.height, size.width, size.height};
    screens_.push_back(screenAt(frame, displayID));
}

std::vector<Rect> SimDesktop::accessibilityScreenFrames() const {
    std::vector<Rect> frames;
    if (screens_.empty()) return frames;
    const double primaryHeight = screens_.front().frame.height;
    for (const ScreenDescription& screen : screens_) {
        const Rect& f = screen.frame;
        frames.push_back({f.x, primaryHeight - f.maxY(), f.width, f.height});
    }
    return frames;
}

}  // namespace vistrel
