#include "platform/sim/sim_installations.h"

#include <algorithm>

#include "platform/sim/sim_desktop.h"

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
    settleLater(found->launchDelay);
    settleLater(found->launchDelay + found->windowDelay);
    return pending_.back().runsAt;
}

std::optional<double> SimInstallations::openDocument(const std::string& path, SimWindow window) {
    const std::optional<double> runsAt = launch(path);
    if (!runsAt) return std::nullopt;
    const SimInstalledApplication* found = at(path);
    for (Pending& pending : pending_) {
        if (pending.bundleIdentifier != found->bundleIdentifier) continue;
        pending.documents.push_back(std::move(window));
        return runsAt;
    }
    // Running already: only the file's window comes up.
    const double now = desktop_.clock().now();
    Pending opening{found->bundleIdentifier, now, *running(found->bundleIdentifier)};
    opening.reopens = false;
    opening.documents.push_back(std::move(window));
    pending_.push_back(std::move(opening));
    settleLater(found->windowDelay);
    return now;
}

// Time moved on by the executor brings a launch up on its own; a sleeping queue brings it up
// the next time it looks.
void SimInstallations::settleLater(double seconds) {
    desktop_.executor().mainQueue().after(seconds, [this] { settle(); });
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
            if (pending.reopens) {
                for (const SimWindow& window : installed->windows)
                    desktop_.addWindow(pending.pid, window);
            }
            for (const SimWindow& window : pending.documents)
                desktop_.addWindow(pending.pid, window);
            pending.done = true;
        }
    }
    std::erase_if(pending_, [](const Pending& pending) { return pending.done; });
}

}  // namespace vistrel
