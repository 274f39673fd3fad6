#pragma once

#include <AppKit/NSButton.h>
#include <Foundation/NSString.h>

@interface NSPopUpButton : NSButton
- (instancetype)initWithFrame:(NSRect)buttonFrame pullsDown:(BOOL)flag;
- (void)addItemWithTitle:(NSString*)title;
// -1 deselects every item.
- (void)selectItemAtIndex:(NSInteger)index;
@property(readonly) NSInteger indexOfSelectedItem;
@end
