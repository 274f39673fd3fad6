#pragma once

#include <Foundation/NSString.h>

typedef NSString* NSAppearanceName;

VISTREL_EXTERN_C_BEGIN
VISTREL_MACOS(10.10) extern NSAppearanceName const NSAppearanceNameVibrantDark;
VISTREL_EXTERN_C_END

@interface NSAppearance : NSObject
+ (nullable NSAppearance*)appearanceNamed:(NSAppearanceName)name;
@end
