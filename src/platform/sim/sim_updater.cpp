#include "platform/sim/sim_updater.h"

namespace vistrel {

namespace {

class SimUpdater : public Updater {
  public:
    explicit SimUpdater(SimUpdaterRecord& record) : record_(record) {}

    std::optional<std::string> start() override {
        ++record_.starts;
        return record_.startError;
    }
    std::optional<std::string> feedURL() override { return record_.feedURL; }
    void checkForUpdates() override { ++record_.checks; }
    bool automaticallyDownloadsUpdates() override { return record_.automaticallyDownloads; }
    void setAutomaticallyDownloadsUpdates(bool on) override { record_.automaticallyDownloads = on; }

  private:
    SimUpdaterRecord& record_;
};

}  // namespace

std::unique_ptr<Updater> SimUpdateService::makeUpdater() {
    ++record.made;
    return std::make_unique<SimUpdater>(record);
}

}  // namespace vistrel
