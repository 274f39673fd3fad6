#pragma once

#include <AppKit/NSWindow.h>

@interface NSPanel : NSWindow
@end

@interface NSWindow (VistrelKeyPanel)
@property(readonly) BOOL canBecomeKeyWindow;
@property(readonly, getter=isKeyWindow) BOOL keyWindow;
- (void)makeKeyAndOrderFront:(nullable id)sender;
- (void)resignKeyWindow;
- (void)invalidateShadow;
- (NSRect)convertRectToScreen:(NSRect)rect VISTREL_MACOS(10.7);
@end

@interface NSResponder (VistrelKeyPanel)
- (void)cancelOperation:(nullable id)sender;
- (void)mouseDown:(NSEvent*)event;
- (void)mouseUp:(NSEvent*)event;
- (void)mouseMoved:(NSEvent*)event;
- (void)mouseExited:(NSEvent*)event;
- (void)scrollWheel:(NSEvent*)event;
// The default passes the event to the next responder.
- (void)keyDown:(NSEvent*)event;
@end
