#include "platform/mac/mac_save_panel.h"

#import <AppKit/AppKit.h>

#include "platform/mac/mac_modal_alert.h"
#include "platform/mac/mac_strings.h"

namespace vistrel {

std::optional<std::string> MacSavePanel::run(const std::string& proposedName) {
    NSSavePanel* panel = [NSSavePanel savePanel];
    panel.nameFieldStringValue = nsString(proposedName);
    panel.canCreateDirectories = YES;
    bringAgentForward();
    if ([panel runModal] != NSModalResponseOK || panel.URL == nil) return std::nullopt;
    return utf8(panel.URL.path);
}

}  // namespace vistrel
