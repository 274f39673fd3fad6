#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/updater.h"

namespace vistrel {

// What the simulated Sparkle updater was asked, shared by the service and its updaters.
struct SimUpdaterRecord {
    int made = 0;
    int starts = 0;
    int checks = 0;
    bool automaticallyDownloads = false;
    // The feed the updater reports once started.
    std::optional<std::string> feedURL = std::string("https://updates.example.com/appcast.xml");
    // When set, starting fails with this description.
    std::optional<std::string> startError;
};

// A Sparkle updater that records what it is asked instead of reaching a feed.
class SimUpdateService : public UpdateService {
  public:
    std::unique_ptr<Updater> makeUpdater() override;
    SimUpdaterRecord record;
};

}  // namespace vistrel
