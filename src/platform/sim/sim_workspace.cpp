#include "platform/sim/sim_workspace.h"

#include "platform/sim/sim_desktop.h"

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
    std::vector<RunningApplication> running;
    for (const SimApplication& app : desktop_.applications()) {
        if (!app.terminated) running.push_back(describe(app));
    }
    return running;
}

std::optional<RunningApplication> SimWorkspace::application(Pid pid) {
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
    if (launcher) {
        launcher(url, configuration, std::move(completion));
        return;
    }
    desktop_.executor().main().async([completion = std::move(completion)] {
        completion(false, "The application cannot be opened.");
    });
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

std::vector<ScreenDescription> SimScreenList::screens() {
    return desktop_.screens();
}

std::optional<std::size_t> SimScreenList::mainScreenIndex() {
    if (desktop_.mainScreenIndex && *desktop_.mainScreenIndex < desktop_.screens().size()) {
        return desktop_.mainScreenIndex;
    }
    return std::nullopt;
}

}  // namespace vistrel
