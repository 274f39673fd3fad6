#import <AppKit/AppKit.h>

#include "platform/mac/mac_platform.h"
#include "ui/kit/dfkit_fonts.h"

// The agent: an accessory application (a status item, no Dock icon) over the core.
int main(int argc, const char* argv[]) {
    @autoreleasepool {
        static vistrel::MacPlatform machine;
        vistrel::installPlatform(&machine.platform());
        vistrel::DFKitFonts::registerFonts();
        NSApplication* application = NSApplication.sharedApplication;
        application.activationPolicy = NSApplicationActivationPolicyAccessory;
        return NSApplicationMain(argc, argv);
    }
}
