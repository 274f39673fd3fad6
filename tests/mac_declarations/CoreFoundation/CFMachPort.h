#pragma once

#include <CoreFoundation/CFRunLoop.h>

typedef struct __CFMachPort* CFMachPortRef;

VISTREL_EXTERN_C_BEGIN
CFRunLoopSourceRef CFMachPortCreateRunLoopSource(CFAllocatorRef allocator, CFMachPortRef port,
                                                 CFIndex order);
Boolean CFMachPortIsValid(CFMachPortRef port);
void CFMachPortInvalidate(CFMachPortRef port);
VISTREL_EXTERN_C_END
