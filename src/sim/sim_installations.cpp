#include "sim/sim_installations.h"

#include <algorithm>

#include "sim/sim_desktop.h"

namespace vistrel {

void SimInstallations::install(SimInstalledApplication application) {
    desktop_.workspace().installed[application.bundleIdentifier] = application.path;
    auto same = std::find_if(installed_.begin(), installed_.end(), [&](const auto& app) {
        return app.bundleIdentifier == application.bundleIdentifier;
    });
    if (same != installed_.end()) {
        *same = std::move(application);
        return;
    }
    installed_.push_back(std::move(application));
}

const SimInstalledApplication* SimInstallations::find(const std::string& bundleIdentifier) const {
    auto found = std::find_if(installed_.begin(), installed_.end(), [&](const auto& app) {
        return app.bundleIdentifier == bundleIdentifier;
    });
    return found == installed_.end() ? nullptr : &*found;
}

const SimInstalledApplication* SimInstallations::at(const std::string& path) const {
    auto found = std::find_if(installed_.begin(), installed_.end(),
                              [&](const auto& app) { return app.path == path; });
    return found == installed_.end() ? nullptr : &*found;
}

std::optional<Pid> SimInstallations::running(const std::string& bundleIdentifier) const {
    for (const SimApplication& app : desktop_.applications()) {
        if (app.bundleIdentifier == bundleIdentifier && !app.terminated) return app.pid;
    }
    return std::nullopt;
}

std::optional<double> SimInstallations::launch(const std::string& path) {
    settle();
    const SimInstalledApplication* found = at(path);
    if (found == nullptr) return std::nullopt;
    const double now = desktop_.clock().now();
    for (const Pending& pending : pending_) {
        if (pending.bundleIdentifier == found->bundleIdentifier) return pending.runsAt;
    }
    if (running(found->bundleIdentifier)) return now;
    ++launches_;
    pending_.push_back({found->bundleIdentifier, now + found->launchDelay});
    // Time moved on by the executor brings the launch up on its own; a sleeping queue
    // brings it up the next time it looks.
    desktop_.executor().mainQueue().after(found->launchDelay, [this] { settle(); });
    desktop_.executor().mainQueue().after(found->launchDelay + found->windowDelay,
                                          [this] { settle(); });
    return pending_.back().runsAt;
}

void SimInstallations::settle() {
    const double now = desktop_.clock().now();
    for (Pending& pending : pending_) {
        const SimInstalledApplication* installed = find(pending.bundleIdentifier);
        if (installed == nullptr) {
            pending.done = true;
            continue;
        }
        if (pending.pid == 0 && now >= pending.runsAt) {
            SimApplication application;
            application.bundleIdentifier = installed->bundleIdentifier;
            application.name = installed->name;
            pending.pid = desktop_.addApplication(std::move(application));
        }
        if (pending.pid != 0 && now >= pending.runsAt + installed->windowDelay) {
            for (const SimWindow& window : installed->windows)
                desktop_.addWindow(pending.pid, window);
            pending.done = true;
        }
    }
    std::erase_if(pending_, [](const Pending& pending) { return pending.done; });
}

}  // namespace vistrel
