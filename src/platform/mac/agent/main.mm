#import <AppKit/AppKit.h>
#include <dispatch/dispatch.h>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "app/agent_main.h"
#include "app/app_delegate.h"
#include "app/layout_command_line.h"
#include "platform/mac/mac_platform.h"
#include "platform/mac/mac_strings.h"
#include "tracking/mission_control_capture.h"

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

// URLs of the scheme the bundle declares. When one launches the agent, AppKit may call this
// before applicationDidFinishLaunching:; the agent keeps them until it has started.
- (void)application:(NSApplication*)application openURLs:(NSArray<NSURL*>*)urls {
    std::vector<std::string> texts;
    for (NSURL* url in urls) {
        if (auto text = vistrel::utf8Text(url.absoluteString)) texts.push_back(*text);
    }
    _agent.openURLs(texts);
}

@end

namespace {

// `Vistrel --capture-mission-control FILE`: the core waits for Mission Control and writes
// the file; the main queue runs until it reports, then the process exits. The wait is
// delayed work on the capture's own queue (dispatch_after), a bounded number of times, so
// the main thread sleeps in dispatch_main rather than spinning. The prompt is flushed at
// once: when the output goes to a pipe it would otherwise show only at the end.
[[noreturn]] int capture(const vistrel::MissionControlCapture::Request& request) {
    using vistrel::MissionControlCapture::Outcome;
    std::puts("mission control: open Mission Control within a minute to capture it");
    std::fflush(stdout);
    vistrel::MissionControlCapture::start(request, [request](Outcome outcome) {
        std::puts(vistrel::MissionControlCapture::message(outcome, request).c_str());
        std::exit(outcome == Outcome::written ? EXIT_SUCCESS : EXIT_FAILURE);
    });
    dispatch_main();
}

// `Vistrel --apply-layout NAME`, `--save-layout NAME`, `--list-layouts`: the core asks the
// running agent and reports once, then the process exits with its status. The answer comes
// as a distributed notification, which the main run loop delivers, so the main thread runs
// that loop (it serves the main queue as well); a timer keeps the loop from returning at
// once for want of anything to wait on before the notification centre has added its port.
[[noreturn]] int layoutCommand(const vistrel::LayoutCommandLine::Invocation& invocation) {
    vistrel::LayoutCommandLine::start(invocation, [](vistrel::LayoutCommandLine::Result result) {
        for (const std::string& line : result.lines)
            std::cout << line << '\n';
        std::cout.flush();
        if (!result.reason.empty()) std::cerr << result.reason << std::endl;
        std::exit(result.status);
    });
    NSTimer* keepAlive = [NSTimer timerWithTimeInterval:vistrel::LayoutCommandLine::doneTimeout
                                                repeats:YES
                                                  block:^(NSTimer*){
                                                  }];
    [[NSRunLoop mainRunLoop] addTimer:keepAlive forMode:NSRunLoopCommonModes];
    CFRunLoopRun();
    std::exit(EXIT_FAILURE);
}

// The agent: an accessory application (a status item, no Dock icon) over the core.
int runApplication() {
    // The application holds its delegate weakly; this one lives as long as the process.
    static VistrelAppDelegate* delegate = [[VistrelAppDelegate alloc] init];
    NSApplication* application = NSApplication.sharedApplication;
    application.delegate = delegate;
    application.activationPolicy = NSApplicationActivationPolicyAccessory;
    [application run];
    return 0;
}

}  // namespace

int main() {
    @autoreleasepool {
        // Made on the heap and never destroyed: quitting ends in exit(), which runs static
        // destructors while dispatch queues may still call into the platform. Building it
        // touches no AppKit, so "--diagnose" and the capture make no application object.
        auto* machine = new vistrel::MacPlatform;
        vistrel::installPlatform(&machine->platform());
        return vistrel::AgentMain::run(
            std::cout,
            {.capture = capture, .layoutCommand = layoutCommand, .application = runApplication});
    }
}
