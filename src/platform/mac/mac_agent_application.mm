#include "platform/mac/mac_agent_application.h"

#import <AppKit/AppKit.h>
#include <dispatch/dispatch.h>

#include <string>

#include "platform/mac/mac_strings.h"

namespace vistrel {

void MacAgentApplication::activate() {
    if (@available(macOS 14.0, *)) {
        [NSApplication.sharedApplication activate];
    } else {
        [NSApplication.sharedApplication activateIgnoringOtherApps:YES];
    }
}

void MacAgentApplication::keepTimersOnTime(std::string_view reason) {
    // The token is the activity: it lasts as long as someone holds it, here the process.
    static id<NSObject> activity;
    if (activity != nil) return;
    activity = [NSProcessInfo.processInfo
        beginActivityWithOptions:NSActivityUserInitiatedAllowingIdleSystemSleep
                          reason:nsString(std::string(reason))];
}

void MacAgentApplication::terminate() {
    dispatch_async(dispatch_get_main_queue(), ^{
      [NSApplication.sharedApplication terminate:nil];
    });
}

}  // namespace vistrel
