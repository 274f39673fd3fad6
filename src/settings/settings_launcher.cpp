#include "settings/settings_launcher.h"

#include "base/log.h"
#include "platform/platform.h"
#include "settings/settings.h"

namespace vistrel {

namespace {

constexpr std::string_view openFailed = "could not open settings: ";

// Asks every running copy of the application at `path` to quit.
void terminateRunningCopies(const std::string& path) {
    Workspace& workspace = platform().workspace;
    const auto identifier = workspace.bundleIdentifier(path);
    if (!identifier) return;
    for (const RunningApplication& app : workspace.runningApplications()) {
        if (app.bundleIdentifier == identifier) workspace.terminate(app.pid);
    }
}

}  // namespace

std::vector<std::string> SettingsLauncher::arguments(bool onboarding, bool about,
                                                     bool onboardingCompleted) {
    if (onboarding && onboardingCompleted) {
        return {std::string(onboardingArgument), std::string(replayArgument)};
    }
    if (onboarding) return {std::string(onboardingArgument)};
    if (about) return {std::string(aboutArgument)};
    return {};
}

std::string SettingsLauncher::path(const std::string& bundlePath) {
    return bundlePath + "/" + std::string(helperPath);
}

void SettingsLauncher::open(bool onboarding, bool about) {
    Platform& p = platform();
    const std::string url = path(p.workspace.mainBundle().path);
    terminateRunningCopies(url);
    OpenConfiguration configuration;
    configuration.activates = true;
    configuration.createsNewApplicationInstance = true;
    configuration.arguments =
        arguments(onboarding, about, Settings::shared().onboardingCompleted());
    p.executor.main().after(openDelay, [url, configuration] {
        platform().workspace.openApplication(url, configuration,
                                             [](bool ok, const std::string& error) {
                                                 if (!ok)
                                                     Log::error(std::string(openFailed) + error);
                                             });
    });
}

}  // namespace vistrel
