#pragma once

#include <AppKit/NSControl.h>
#include <AppKit/NSView.h>
#include <Foundation/NSGeometry.h>
#include <Foundation/NSString.h>

@class NSMenu;

@interface NSMenuItem : NSObject <NSCopying>
+ (NSMenuItem*)separatorItem;
- (instancetype)initWithTitle:(NSString*)string
                       action:(nullable SEL)selector
                keyEquivalent:(NSString*)charCode;
@property(nullable, weak) id target;
@property NSControlStateValue state;
@property(nullable, copy) NSString* toolTip;
@property(nullable, strong) NSMenu* submenu;
@end

@interface NSMenu : NSObject <NSCopying>
- (instancetype)initWithTitle:(NSString*)title;
@property(copy) NSString* title;
- (void)addItem:(NSMenuItem*)newItem;
// Pops the menu up and tracks it; returns once it closes, YES when an item was chosen.
- (BOOL)popUpMenuPositioningItem:(nullable NSMenuItem*)item
                      atLocation:(NSPoint)location
                          inView:(nullable NSView*)view VISTREL_MACOS(10.6);
@end
