#include "platform/sim/sim_workspace.h"

#include <algorithm>

#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_icon.h"

namespace vistrel {

namespace {

RunningApplication describe(const SimApplication& app) {
    return {app.pid,
            app.bundleIdentifier.empty() ? std::nullopt : std::optional(app.bundleIdentifier),
            app.name.empty() ? std::nullopt : std::optional(app.name),
            app.activationPolicy,
            app.hidden,
            app.terminated};
}

}  // namespace

std::vector<RunningApplication> SimWorkspace::runningApplications() {
    desktop_.installations().settle();
    std::vector<RunningApplication> running;
    for (const SimApplication& app : desktop_.applications()) {
        if (!app.terminated) running.push_back(describe(app));
    }
    return running;
}

std::optional<RunningApplication> SimWorkspace::application(Pid pid) {
    desktop_.installations().settle();
    const SimApplication* app = desktop_.application(pid);
    if (app == nullptr || app->terminated) return std::nullopt;
    return describe(*app);
}

bool SimWorkspace::hide(Pid pid) {
    SimApplication* app = desktop_.application(pid);
    if (app == nullptr || app->terminated) return false;
    app->hidden = true;
    return true;
}

bool SimWorkspace::unhide(Pid pid) {
    SimApplication* app = desktop_.application(pid);
    if (app == nullptr || app->terminated) return false;
    app->hidden = false;
    return true;
}

bool SimWorkspace::activate(Pid pid) {
    SimApplication* app = desktop_.application(pid);
    if (app == nullptr || app->terminated) return false;
    app->hidden = false;
    activations.push_back(pid);
    // Without NSApplicationActivateAllWindows only the application's front window comes
    // forward; its other windows keep their places.
    for (const SimWindow& window : desktop_.windows()) {
        if (window.pid == pid && desktop_.isOnScreen(window)) {
            desktop_.bringToFront(window.id);
            break;
        }
    }
    return true;
}

bool SimWorkspace::terminate(Pid pid) {
    return forceTerminate(pid);
}

bool SimWorkspace::forceTerminate(Pid pid) {
    SimApplication* app = desktop_.application(pid);
    if (app == nullptr || app->terminated) return false;
    app->terminated = true;
    for (SimWindowId id : desktop_.windowsOf(pid))
        desktop_.closeWindow(id);
    return true;
}

std::optional<std::string> SimWorkspace::applicationURL(const std::string& bundleIdentifier) {
    auto found = installed.find(bundleIdentifier);
    if (found == installed.end()) return std::nullopt;
    return found->second;
}

void SimWorkspace::openApplication(const std::string& url, const OpenConfiguration& configuration,
                                   OpenCompletion completion) {
    openRequests.emplace_back(url, configuration);
    if (launcher) {
        launcher(url, configuration, std::move(completion));
        return;
    }
    const auto runsAt = desktop_.installations().launch(url);
    if (!runsAt) {
        desktop_.executor().main().async([completion = std::move(completion)] {
            completion(false, "The application cannot be opened.");
        });
        return;
    }
    const double delay = std::max(0.0, *runsAt - desktop_.clock().now());
    desktop_.executor().main().after(
        delay, [completion = std::move(completion)] { completion(true, std::string()); });
}

// The wait is virtual: the calling queue's clock moves on to the launch or to the time-out.
bool SimWorkspace::launchApplication(const std::string& url, const OpenConfiguration& configuration,
                                     double timeout) {
    launchRequests.emplace_back(url, configuration);
    const auto runsAt = desktop_.installations().launch(url);
    if (!runsAt) return false;
    const double wait = *runsAt - desktop_.clock().now();
    desktop_.clock().sleep(std::min(wait, timeout));
    desktop_.installations().settle();
    return wait <= timeout;
}

// The application shows the file in a new window titled with the file's name, whose
// "AXDocument" is the file's URL, as a document-based application (or Finder, for a folder)
// does. The completion comes once the application runs, before the window is up, as
// open(_:withApplicationAt:configuration:completionHandler:) completes with the running
// application in Apple's documentation; the caller waits for the window itself.
bool SimWorkspace::openDocument(const std::string& fileURL, const std::string& applicationURL,
                                const OpenConfiguration& configuration, double timeout) {
    static_cast<void>(configuration);
    documentRequests.emplace_back(fileURL, applicationURL);
    SimWindow window;
    std::string_view name = fileURL;
    if (name.ends_with('/')) name.remove_suffix(1);
    window.title = std::string(name.substr(name.rfind('/') + 1));
    window.frame = documentWindowFrame;
    window.document = fileURL;
    const auto runsAt = desktop_.installations().openDocument(applicationURL, std::move(window));
    if (!runsAt) return false;
    const double wait = *runsAt - desktop_.clock().now();
    desktop_.clock().sleep(std::min(wait, timeout));
    desktop_.installations().settle();
    return wait <= timeout;
}

std::shared_ptr<const Image> SimWorkspace::applicationIcon(const std::string& bundleIdentifier,
                                                           int pixels) {
    const SimInstalledApplication* installed = desktop_.installations().find(bundleIdentifier);
    if (installed == nullptr) return nullptr;
    return simApplicationIcon(installed->iconColor, pixels);
}

bool SimWorkspace::openURL(const std::string& url) {
    if (url.find(':') == std::string::npos) return false;
    openedURLs.push_back(url);
    return true;
}

Pid SimWorkspace::ownPid() {
    return desktop_.ownPid;
}

BundleInfo SimWorkspace::mainBundle() {
    return desktop_.bundle;
}

std::optional<std::string> SimWorkspace::bundleIdentifier(const std::string& bundlePath) {
    const SimInstalledApplication* installed = desktop_.installations().at(bundlePath);
    if (installed == nullptr) return std::nullopt;
    return installed->bundleIdentifier;
}

std::vector<ScreenDescription> SimScreenList::screens() {
    return desktop_.screens();
}

std::optional<std::size_t> SimScreenList::mainScreenIndex() {
    if (desktop_.mainScreenIndex && *desktop_.mainScreenIndex < desktop_.screens().size()) {
        return desktop_.mainScreenIndex;
    }
    return std::nullopt;
}

bool SimScreenList::screensHaveSeparateSpaces() {
    return desktop_.separateSpaces;
}

}  // namespace vistrel
