#include "platform/mac/mac_agent_application.h"

#import <AppKit/AppKit.h>
#include <dispatch/dispatch.h>

namespace vistrel {

void MacAgentApplication::activate() {
    if (@available(macOS 14.0, *)) {
        [NSApplication.sharedApplication activate];
    } else {
        [NSApplication.sharedApplication activateIgnoringOtherApps:YES];
    }
}

void MacAgentApplication::terminate() {
    dispatch_async(dispatch_get_main_queue(), ^{
      [NSApplication.sharedApplication terminate:nil];
    });
}

}  // namespace vistrel
