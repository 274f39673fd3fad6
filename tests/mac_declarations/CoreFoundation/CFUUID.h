#pragma once

#include <CoreFoundation/CFBase.h>

typedef const struct __CFUUID* CFUUIDRef;

VISTREL_EXTERN_C_BEGIN
CFStringRef CFUUIDCreateString(CFAllocatorRef alloc, CFUUIDRef uuid);
VISTREL_EXTERN_C_END
