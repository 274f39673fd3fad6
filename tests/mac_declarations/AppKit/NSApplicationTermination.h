#pragma once

#include <AppKit/NSApplication.h>

@interface NSApplication (Termination)
// Asks the delegate, then ends the event loop and the process.
- (void)terminate:(nullable id)sender;
@end
