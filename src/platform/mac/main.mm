#import <AppKit/AppKit.h>
#include <dispatch/dispatch.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "platform/mac/mac_platform.h"
#include "tracking/mission_control_capture.h"
#include "tracking/mission_control_host.h"
#include "ui/kit/dfkit_fonts.h"

namespace {

// `Vistrel --capture-mission-control FILE`: the core waits for Mission Control and writes
// the file; the main queue runs until it reports, then the process exits.
[[noreturn]] void capture(const vistrel::MissionControlCapture::Request& request) {
    using vistrel::MissionControlCapture::Outcome;
    std::puts("mission control: open Mission Control within a minute to capture it");
    vistrel::MissionControlCapture::start(request, [request](Outcome outcome) {
        std::puts(vistrel::MissionControlCapture::message(outcome, request).c_str());
        std::exit(outcome == Outcome::written ? EXIT_SUCCESS : EXIT_FAILURE);
    });
    dispatch_main();
}

}  // namespace

// The agent: an accessory application (a status item, no Dock icon) over the core.
int main(int argc, const char* argv[]) {
    @autoreleasepool {
        static vistrel::MacPlatform machine;
        vistrel::installPlatform(&machine.platform());
        const std::vector<std::string> arguments(argv, argv + argc);
        if (auto request = vistrel::MissionControlCapture::requested(arguments)) capture(*request);
        vistrel::MissionControlHosts::logWhereRead();
        vistrel::DFKitFonts::registerFonts();
        NSApplication* application = NSApplication.sharedApplication;
        application.activationPolicy = NSApplicationActivationPolicyAccessory;
        return NSApplicationMain(argc, argv);
    }
}
