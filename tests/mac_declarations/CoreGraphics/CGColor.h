#pragma once

#include <CoreGraphics/CGBase.h>

typedef struct CGColor* CGColorRef;

VISTREL_EXTERN_C_BEGIN
VISTREL_MACOS(10.15)
CGColorRef CGColorCreateSRGB(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha);
VISTREL_EXTERN_C_END
