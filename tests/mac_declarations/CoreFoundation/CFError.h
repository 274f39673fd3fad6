#pragma once

#include <CoreFoundation/CFBase.h>

typedef struct __CFError* CFErrorRef;

VISTREL_EXTERN_C_BEGIN
CFStringRef CFErrorCopyDescription(CFErrorRef err);
VISTREL_EXTERN_C_END
