#pragma once

#include <AppKit/NSFont.h>

@interface NSFont (SystemFontSize)
// The system font in its regular weight.
+ (NSFont*)systemFontOfSize:(CGFloat)fontSize;
// The size of the standard system font, in points.
@property(class, readonly) CGFloat systemFontSize;
@property(class, readonly) CGFloat smallSystemFontSize;
+ (NSFont*)boldSystemFontOfSize:(CGFloat)fontSize;
+ (NSFont*)monospacedSystemFontOfSize:(CGFloat)fontSize
                               weight:(NSFontWeight)weight VISTREL_MACOS(10.15);
+ (NSFont*)monospacedDigitSystemFontOfSize:(CGFloat)fontSize
                                    weight:(NSFontWeight)weight VISTREL_MACOS(10.11);
@end
