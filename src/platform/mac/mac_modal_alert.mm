#include "platform/mac/mac_modal_alert.h"

#import <AppKit/AppKit.h>

#include "platform/mac/mac_strings.h"

namespace vistrel {

void bringAgentForward() {
    [NSApplication.sharedApplication activateIgnoringOtherApps:YES];
}

NSAlert* makeAlert(const AlertContent& content) {
    NSAlert* alert = [[NSAlert alloc] init];
    alert.messageText = nsString(content.title);
    alert.informativeText = nsString(content.text);
    for (const std::string& button : content.buttons)
        [alert addButtonWithTitle:nsString(button)];
    return alert;
}

std::size_t runAlert(NSAlert* alert) {
    bringAgentForward();
    const NSModalResponse response = [alert runModal];
    if (response < NSAlertFirstButtonReturn) return 0;
    return static_cast<std::size_t>(response - NSAlertFirstButtonReturn);
}

std::size_t MacModalAlert::run(const AlertContent& alert) {
    return runAlert(makeAlert(alert));
}

}  // namespace vistrel
