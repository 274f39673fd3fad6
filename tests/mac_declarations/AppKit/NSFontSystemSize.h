#pragma once

#include <AppKit/NSFont.h>

@interface NSFont (SystemFontSize)
// The system font in its regular weight.
+ (NSFont*)systemFontOfSize:(CGFloat)fontSize;
// The size of the standard system font, in points.
@property(class, readonly) CGFloat systemFontSize;
@end
