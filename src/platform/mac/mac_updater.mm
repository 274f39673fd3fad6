#include "platform/mac/mac_updater.h"

#import <Foundation/Foundation.h>
#import <Sparkle/Sparkle.h>

// The user driver's delegate: the standard driver may remind the user gently of a
// scheduled update, as an agent without a Dock icon cannot draw attention otherwise.
@interface VistrelUpdateDriverDelegate : NSObject <SPUStandardUserDriverDelegate>
@end

@implementation VistrelUpdateDriverDelegate
- (BOOL)supportsGentleScheduledUpdateReminders {
    return YES;
}
@end

namespace vistrel {

namespace {

class MacUpdater : public Updater {
  public:
    MacUpdater()
        : delegate_([[VistrelUpdateDriverDelegate alloc] init]),
          driver_([[SPUStandardUserDriver alloc] initWithHostBundle:NSBundle.mainBundle
                                                           delegate:delegate_]),
          updater_([[SPUUpdater alloc] initWithHostBundle:NSBundle.mainBundle
                                        applicationBundle:NSBundle.mainBundle
                                               userDriver:driver_
                                                 delegate:nil]) {}

    std::optional<std::string> start() override {
        NSError* error = nil;
        if ([updater_ startUpdater:&error]) return std::nullopt;
        return std::string(error != nil ? error.localizedDescription.UTF8String : "unknown error");
    }
    std::optional<std::string> feedURL() override {
        NSString* feed = updater_.feedURL.absoluteString;
        if (feed == nil) return std::nullopt;
        return std::string(feed.UTF8String);
    }
    void checkForUpdates() override { [updater_ checkForUpdates]; }
    bool automaticallyDownloadsUpdates() override { return updater_.automaticallyDownloadsUpdates; }
    void setAutomaticallyDownloadsUpdates(bool on) override {
        updater_.automaticallyDownloadsUpdates = on;
    }

  private:
    // The driver holds its delegate weakly, so the updater keeps it.
    VistrelUpdateDriverDelegate* delegate_;
    SPUStandardUserDriver* driver_;
    SPUUpdater* updater_;
};

}  // namespace

std::unique_ptr<Updater> MacUpdateService::makeUpdater() {
    return std::make_unique<MacUpdater>();
}

}  // namespace vistrel
