#pragma once

#include <AppKit/NSColor.h>
#include <AppKit/NSControl.h>
#include <AppKit/NSImage.h>
#include <Foundation/NSString.h>

@interface NSButton : NSControl
+ (instancetype)buttonWithTitle:(NSString*)title
                         target:(nullable id)target
                         action:(nullable SEL)action VISTREL_MACOS(10.12);
@property(nullable, strong) NSImage* image;
- (void)highlight:(BOOL)flag;
@property(copy) NSString* title;
@property NSControlStateValue state;
@property(getter=isBordered) BOOL bordered;
@property(nullable, copy) NSColor* contentTintColor VISTREL_MACOS(10.14);
// "\r" makes the button the window's default one.
@property(copy) NSString* keyEquivalent;
@end
