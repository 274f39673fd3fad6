#pragma once

#include <AppKit/NSView.h>
#include <AppKit/NSWindow.h>

// The order the keyboard focus moves in with Tab, and where it starts.
@interface NSView (KeyViewLoop)
@property(nullable, assign) NSView* nextKeyView;
@end

@interface NSWindow (KeyViewLoop)
@property(nullable, weak) NSView* initialFirstResponder;
@end
