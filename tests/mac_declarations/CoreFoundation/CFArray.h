#pragma once

#include <CoreFoundation/CFBase.h>

typedef const struct __CFArray* CFArrayRef;

VISTREL_EXTERN_C_BEGIN
CFTypeID CFArrayGetTypeID(void);
CFIndex CFArrayGetCount(CFArrayRef theArray);
const void* CFArrayGetValueAtIndex(CFArrayRef theArray, CFIndex idx);
VISTREL_EXTERN_C_END
