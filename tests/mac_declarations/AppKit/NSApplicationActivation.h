#pragma once

#include <AppKit/NSApplication.h>

@interface NSApplication (Activation)
// Deprecated from macOS 14 in favour of -activate, which is not there on macOS 13.
- (void)activateIgnoringOtherApps:(BOOL)ignoreOtherApps;
@end
