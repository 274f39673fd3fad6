#pragma once

// Core Foundation's basic types, ownership calls and allocators. Every CF object type is a
// pointer to a distinct opaque struct, so one kind cannot be passed for another.

#include <stdint.h>

#include "vistrel_declarations.h"

typedef unsigned char Boolean;
typedef uint8_t UInt8;
typedef uint32_t UInt32;
typedef int32_t SInt32;
typedef long CFIndex;
typedef unsigned long CFTypeID;
typedef unsigned long CFHashCode;
typedef unsigned long CFOptionFlags;

// A part of a linear sequence: its first index and how many items it spans.
typedef struct {
    CFIndex location;
    CFIndex length;
} CFRange;

static inline CFRange CFRangeMake(CFIndex loc, CFIndex len) {
    CFRange range = {loc, len};
    return range;
}

typedef const void* CFTypeRef;
typedef const struct __CFAllocator* CFAllocatorRef;
typedef const struct __CFString* CFStringRef;

VISTREL_EXTERN_C_BEGIN
extern const CFAllocatorRef kCFAllocatorDefault;

CFTypeRef CFRetain(CFTypeRef cf);
void CFRelease(CFTypeRef cf);
Boolean CFEqual(CFTypeRef cf1, CFTypeRef cf2);
CFHashCode CFHash(CFTypeRef cf);
CFTypeID CFGetTypeID(CFTypeRef cf);
VISTREL_EXTERN_C_END
