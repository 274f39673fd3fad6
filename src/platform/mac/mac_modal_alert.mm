#include "platform/mac/mac_modal_alert.h"

#import <AppKit/AppKit.h>

#include "platform/mac/mac_strings.h"

namespace vistrel {

void bringAgentForward() {
    if (@available(macOS 14.0, *)) {
        [NSApplication.sharedApplication activate];
    } else {
        [NSApplication.sharedApplication activateIgnoringOtherApps:YES];
    }
}

NSAlert* makeAlert(const AlertContent& content) {
    NSAlert* alert = [[NSAlert alloc] init];
    alert.messageText = nsString(content.title);
    alert.informativeText = nsString(content.text);
    for (const std::string& button : content.buttons)
        [alert addButtonWithTitle:nsString(button)];
    return alert;
}

std::optional<std::size_t> runAlert(NSAlert* alert) {
    bringAgentForward();
    const NSModalResponse response = [alert runModal];
    return AlertResponse::button(response, alert.buttons.count);
}

std::optional<std::size_t> MacModalAlert::run(const AlertContent& alert) {
    return runAlert(makeAlert(alert));
}

ModalAlert::Answer MacModalAlert::runWithCheckbox(const AlertContent& content,
                                                  const std::string& checkbox) {
    NSAlert* alert = makeAlert(content);
    alert.showsSuppressionButton = YES;
    alert.suppressionButton.title = nsString(checkbox);
    Answer answer;
    answer.button = runAlert(alert);
    answer.ticked = alert.suppressionButton.state == NSControlStateValueOn;
    return answer;
}

}  // namespace vistrel
