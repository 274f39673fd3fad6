#pragma once

// The window server's window list.

#include <CoreFoundation/CFArray.h>
#include <CoreGraphics/CGBase.h>

typedef uint32_t CGWindowID;
#define kCGNullWindowID ((CGWindowID)0)

typedef uint32_t CGWindowListOption;

VISTREL_EXTERN_C_BEGIN
extern const CFStringRef kCGWindowNumber;
extern const CFStringRef kCGWindowLayer;
extern const CFStringRef kCGWindowBounds;
extern const CFStringRef kCGWindowOwnerPID;
extern const CFStringRef kCGWindowOwnerName;
extern const CFStringRef kCGWindowName;

CFArrayRef CGWindowListCopyWindowInfo(CGWindowListOption option, CGWindowID relativeToWindow);
VISTREL_EXTERN_C_END
