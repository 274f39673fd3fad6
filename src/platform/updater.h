#pragma once

#include <memory>
#include <optional>
#include <string>

namespace vistrel {

// One SPUUpdater of the Sparkle framework for the main bundle.
class Updater {
  public:
    virtual ~Updater() = default;
    // startUpdater(_:): nothing on success, else the error's description.
    virtual std::optional<std::string> start() = 0;
    // feedURL: where the updater looks for updates; nothing when it has no feed.
    virtual std::optional<std::string> feedURL() = 0;
    // checkForUpdates(): the user-visible check, with the standard user driver's windows.
    virtual void checkForUpdates() = 0;
    // automaticallyDownloadsUpdates.
    virtual bool automaticallyDownloadsUpdates() = 0;
    virtual void setAutomaticallyDownloadsUpdates(bool on) = 0;
};

// Makes the updater: SPUStandardUserDriver(hostBundle: Bundle.main, delegate: nil), then
// SPUUpdater(hostBundle: Bundle.main, applicationBundle: Bundle.main, userDriver:,
// delegate: nil). Never fails; starting it may.
class UpdateService {
  public:
    virtual ~UpdateService() = default;
    virtual std::unique_ptr<Updater> makeUpdater() = 0;
};

}  // namespace vistrel
