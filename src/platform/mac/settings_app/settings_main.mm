#import <AppKit/AppKit.h>

#include <memory>

#include "platform/mac/mac_platform.h"
#include "platform/mac/settings_app/settings_main_menu.h"
#include "platform/mac/settings_app/settings_window.h"
#include "settings/shared.h"
#include "settings_app/launch_options.h"
#include "settings_app/settings_model.h"
#include "ui/kit/dfkit_fonts.h"

// Builds the window from the model once AppKit has launched, and quits with its window.
@interface VistrelSettingsAppDelegate : NSObject <NSApplicationDelegate>
@end

@implementation VistrelSettingsAppDelegate {
    std::unique_ptr<vistrel::SettingsModel> model_;
    VistrelSettingsWindow* window_;
    NSMutableArray* menuTargets_;
}

- (void)applicationDidFinishLaunching:(NSNotification*)notification {
    (void)notification;
    vistrel::DFKitFonts::registerFonts();
    model_ = std::make_unique<vistrel::SettingsModel>(
        vistrel::Shared::store(),
        vistrel::LaunchOptions::fromArguments(vistrel::platform().launch.arguments()));
    menuTargets_ = [NSMutableArray arrayWithCapacity:1];
    vistrel::SettingsModel* model = model_.get();
    NSApplication.sharedApplication.mainMenu = vistrel::makeSettingsMainMenu(
        ^{
          model->selectPage(vistrel::PageId::about);
        },
        menuTargets_);
    window_ = [[VistrelSettingsWindow alloc] initWithModel:*model_];
    [window_ show];
    vistrel::platform().application.activate();
}

- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)sender {
    (void)sender;
    return YES;
}

// Restorable state is decoded securely; macOS 14 warns about every app that does not say so.
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)app {
    (void)app;
    return YES;
}

@end

// Vistrel Settings: a regular application with a Dock icon while its window is open.
int main() {
    @autoreleasepool {
        // Never destroyed: terminate: ends in exit(), which would run a static's destructor
        // while the platform's queues may still call into it.
        auto* machine = new vistrel::MacPlatform;
        vistrel::installPlatform(&machine->platform());
        static VistrelSettingsAppDelegate* delegate = [[VistrelSettingsAppDelegate alloc] init];
        NSApplication* application = NSApplication.sharedApplication;
        application.delegate = delegate;
        application.activationPolicy = NSApplicationActivationPolicyRegular;
        [application run];
        return 0;
    }
}
