#pragma once

#include <CoreFoundation/CFBase.h>

VISTREL_EXTERN_C_BEGIN
extern const CFStringRef kCTFontAttributeName;
extern const CFStringRef kCTForegroundColorAttributeName;
extern const CFStringRef kCTKernAttributeName;
VISTREL_EXTERN_C_END
