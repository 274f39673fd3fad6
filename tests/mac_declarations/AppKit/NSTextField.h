#pragma once

#include <AppKit/NSColor.h>
#include <AppKit/NSControl.h>

@interface NSTextField : NSControl
+ (instancetype)labelWithString:(NSString*)stringValue VISTREL_MACOS(10.12);
+ (instancetype)wrappingLabelWithString:(NSString*)stringValue VISTREL_MACOS(10.12);
+ (instancetype)textFieldWithString:(NSString*)stringValue VISTREL_MACOS(10.12);
@property(nullable, copy) NSString* placeholderString VISTREL_MACOS(10.10);
@property(nullable, copy) NSColor* textColor;
@property CGFloat preferredMaxLayoutWidth VISTREL_MACOS(10.8);
@property(getter=isSelectable) BOOL selectable;
@property(getter=isBordered) BOOL bordered;
@property BOOL drawsBackground;
@end
