#pragma once

#include <CoreFoundation/CFBase.h>

typedef UInt32 CFStringEncoding;
VISTREL_ENUM(CFStringEncoding, CFStringBuiltInEncodings){
    kCFStringEncodingUTF8 = 0x08000100,
};

VISTREL_EXTERN_C_BEGIN
CFTypeID CFStringGetTypeID(void);
CFStringRef CFStringCreateWithBytes(CFAllocatorRef alloc, const UInt8* bytes, CFIndex numBytes,
                                    CFStringEncoding encoding, Boolean isExternalRepresentation);
CFIndex CFStringGetLength(CFStringRef theString);
CFIndex CFStringGetBytes(CFStringRef theString, CFRange range, CFStringEncoding encoding,
                         UInt8 lossByte, Boolean isExternalRepresentation, UInt8* buffer,
                         CFIndex maxBufLen, CFIndex* usedBufLen);
VISTREL_EXTERN_C_END
