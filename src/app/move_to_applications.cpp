#include "app/move_to_applications.h"

#include "platform/platform.h"

namespace vistrel {

namespace {

constexpr std::string_view shell = "/bin/sh";
// The new copy waits for this one to be gone before it starts.
constexpr std::string_view relaunchDelay = "sleep 1; ";
constexpr std::string_view openNewInstance = "/usr/bin/open -n ";

// Trashes what is at the destination, copies the bundle there and starts the relaunch:
// whether every step worked.
bool move(const std::string& bundle, const std::string& destination) {
    Platform& p = platform();
    if (p.files.exists(destination) && p.files.trash(destination)) return false;
    if (p.files.copy(bundle, destination)) return false;
    return !p.processes.start(std::string(shell),
                              {"-c", MoveToApplications::relaunchCommand(destination)});
}

}  // namespace

bool MoveToApplications::needsMove(std::string_view bundlePath) {
    return bundlePath.starts_with(volumesPrefix) ||
           bundlePath.find(translocation) != std::string_view::npos;
}

std::string MoveToApplications::relaunchCommand(const std::string& destination) {
    return std::string(relaunchDelay) + std::string(openNewInstance) + "\"" + destination + "\"";
}

bool MoveToApplications::offerIfNeeded() {
    return offerIfNeeded(std::string(applicationsFolder));
}

bool MoveToApplications::offerIfNeeded(const std::string& folder) {
    Platform& p = platform();
    const std::string bundle = p.workspace.mainBundle().path;
    if (!needsMove(bundle)) return false;
    const AlertContent offer{std::string(Text::offerTitle),
                             std::string(Text::offerText),
                             {std::string(Text::move), std::string(Text::notNow)}};
    // Only the move button itself moves: an alert that ended without a button is "Not Now".
    if (p.alert.run(offer) != moveButton) return false;
    if (!move(bundle, folder + "/" + std::string(bundleName))) {
        p.alert.run({std::string(Text::failedTitle),
                     std::string(Text::failedText),
                     {std::string(Text::ok)}});
        return false;
    }
    p.application.terminate();
    return true;
}

}  // namespace vistrel
