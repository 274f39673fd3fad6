#pragma once

#include <AppKit/NSButton.h>
#include <AppKit/NSControl.h>
#include <AppKit/NSImage.h>

static const CGFloat NSSquareStatusItemLength = -2;

@interface NSStatusBarButton : NSButton
@end

@interface NSStatusItem : NSObject
// Nil when the item has no button (it always has one from macOS 10.10).
@property(nullable, readonly, strong) NSStatusBarButton* button VISTREL_MACOS(10.10);
@property(getter=isVisible) BOOL visible VISTREL_MACOS(10.12);
@end

@interface NSStatusBar : NSObject
@property(class, readonly, strong) NSStatusBar* systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@end
