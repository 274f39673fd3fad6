#include "platform/mac/mac_updater.h"

#import <Foundation/Foundation.h>
#import <Sparkle/Sparkle.h>

#include "platform/mac/mac_strings.h"

namespace vistrel {

namespace {

class MacUpdater : public Updater {
  public:
    MacUpdater()
        // No delegate, so no claim of gentle reminders that nothing here would show: the
        // standard driver then brings its own window forward for a scheduled update.
        : driver_([[SPUStandardUserDriver alloc] initWithHostBundle:NSBundle.mainBundle
                                                           delegate:nil]),
          updater_([[SPUUpdater alloc] initWithHostBundle:NSBundle.mainBundle
                                        applicationBundle:NSBundle.mainBundle
                                               userDriver:driver_
                                                 delegate:nil]) {}

    std::optional<std::string> start() override {
        NSError* error = nil;
        if ([updater_ startUpdater:&error]) return std::nullopt;
        return describe(error);
    }
    std::optional<std::string> feedURL() override {
        return utf8Text(updater_.feedURL.absoluteString);
    }
    void checkForUpdates() override { [updater_ checkForUpdates]; }
    bool automaticallyDownloadsUpdates() override { return updater_.automaticallyDownloadsUpdates; }
    void setAutomaticallyDownloadsUpdates(bool on) override {
        updater_.automaticallyDownloadsUpdates = on;
    }

  private:
    SPUStandardUserDriver* driver_;
    SPUUpdater* updater_;
};

}  // namespace

std::unique_ptr<Updater> MacUpdateService::makeUpdater() {
    return std::make_unique<MacUpdater>();
}

}  // namespace vistrel
