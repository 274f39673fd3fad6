#pragma once

#include <CoreFoundation/CFBase.h>

typedef const struct __CFData* CFDataRef;

VISTREL_EXTERN_C_BEGIN
CFDataRef CFDataCreate(CFAllocatorRef allocator, const UInt8* bytes, CFIndex length);
VISTREL_EXTERN_C_END
