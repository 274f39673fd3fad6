#pragma once

#include <Foundation/NSObject.h>

@interface NSColor : NSObject <NSCopying>
@property(class, strong, readonly) NSColor* blackColor;
@property(class, strong, readonly) NSColor* clearColor;
@property(class, strong, readonly) NSColor* labelColor VISTREL_MACOS(10.10);
@property(class, strong, readonly) NSColor* secondaryLabelColor VISTREL_MACOS(10.10);
@property(class, strong, readonly) NSColor* linkColor VISTREL_MACOS(10.10);
@property(class, strong, readonly) NSColor* systemGreenColor VISTREL_MACOS(10.10);
@property(class, strong, readonly) NSColor* systemOrangeColor VISTREL_MACOS(10.10);
- (NSColor*)colorWithAlphaComponent:(CGFloat)alpha;
// Makes this the fill colour of the current graphics context.
- (void)setFill;
// Makes this the stroke colour of the current graphics context.
- (void)setStroke;
@end
