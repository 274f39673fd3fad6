#pragma once

#include <CoreGraphics/CGBase.h>
#include <Foundation/NSString.h>

typedef CGFloat NSFontWeight;

VISTREL_EXTERN_C_BEGIN
VISTREL_MACOS(10.11) extern const NSFontWeight NSFontWeightRegular;
VISTREL_MACOS(10.11) extern const NSFontWeight NSFontWeightMedium;
VISTREL_MACOS(10.11) extern const NSFontWeight NSFontWeightSemibold;
VISTREL_MACOS(10.11) extern const NSFontWeight NSFontWeightBold;
VISTREL_EXTERN_C_END

@interface NSFont : NSObject <NSCopying>
// Nil when no font has that PostScript or full name.
+ (nullable NSFont*)fontWithName:(NSString*)fontName size:(CGFloat)fontSize;
+ (NSFont*)systemFontOfSize:(CGFloat)fontSize weight:(NSFontWeight)weight VISTREL_MACOS(10.11);
@end
