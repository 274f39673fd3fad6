#include "platform/mac/mac_pasteboard.h"

#import <AppKit/AppKit.h>

#include "platform/mac/mac_strings.h"

namespace vistrel {

bool MacPasteboard::copyText(const std::string& text) {
    NSPasteboard* pasteboard = NSPasteboard.generalPasteboard;
    // The owner changes with clearContents; the text is the only thing it then holds.
    [pasteboard clearContents];
    return [pasteboard setString:nsString(text) forType:NSPasteboardTypeString];
}

}  // namespace vistrel
