#pragma once

// AppKit's geometry is Core Graphics' on every 64-bit Mac.

#include <CoreGraphics/CGGeometry.h>
#include <Foundation/NSObjCRuntime.h>

typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;

struct NSEdgeInsets {
    CGFloat top;
    CGFloat left;
    CGFloat bottom;
    CGFloat right;
};

VISTREL_EXTERN_C_BEGIN
extern const NSRect NSZeroRect;
NSRect NSInsetRect(NSRect aRect, CGFloat dX, CGFloat dY);
VISTREL_EXTERN_C_END

inline NSSize NSMakeSize(CGFloat w, CGFloat h) {
    return NSSize{w, h};
}

inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat w, CGFloat h) {
    return NSRect{{x, y}, {w, h}};
}

VISTREL_MACOS(10.10)
inline NSEdgeInsets NSEdgeInsetsMake(CGFloat top, CGFloat left, CGFloat bottom, CGFloat right) {
    return NSEdgeInsets{top, left, bottom, right};
}
