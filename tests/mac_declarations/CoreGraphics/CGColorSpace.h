#pragma once

#include <CoreGraphics/CGBase.h>

typedef struct CGColorSpace* CGColorSpaceRef;

VISTREL_EXTERN_C_BEGIN
VISTREL_MACOS(10.5) extern const CFStringRef kCGColorSpaceSRGB;
CGColorSpaceRef CGColorSpaceCreateWithName(CFStringRef name);
VISTREL_EXTERN_C_END
