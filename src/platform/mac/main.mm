#import <AppKit/AppKit.h>

#include <iostream>

#include "app/agent_main.h"
#include "app/app_delegate.h"
#include "platform/mac/mac_platform.h"

// Hands AppKit's two questions to the agent's delegate, where every decision is made.
@interface VistrelAppDelegate : NSObject <NSApplicationDelegate>
@end

@implementation VistrelAppDelegate {
    vistrel::AppDelegate _agent;
}

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
    _agent.applicationDidFinishLaunching();
}

- (BOOL)applicationShouldHandleReopen:(NSApplication*)sender hasVisibleWindows:(BOOL)flag {
    return _agent.applicationShouldHandleReopen();
}

@end

// The agent: an accessory application (a status item, no Dock icon) over the core.
int main() {
    @autoreleasepool {
        static vistrel::MacPlatform machine;
        vistrel::installPlatform(&machine.platform());
        return vistrel::AgentMain::run(std::cout, [] {
            // The application holds its delegate weakly; this one lives as long as the process.
            static VistrelAppDelegate* delegate = [[VistrelAppDelegate alloc] init];
            NSApplication* application = NSApplication.sharedApplication;
            application.delegate = delegate;
            application.activationPolicy = NSApplicationActivationPolicyAccessory;
            [application run];
            return 0;
        });
    }
}
