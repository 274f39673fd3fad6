#pragma once

#include <CoreGraphics/CGBase.h>

struct CGAffineTransform {
    CGFloat a, b, c, d;
    CGFloat tx, ty;
};

VISTREL_EXTERN_C_BEGIN
extern const CGAffineTransform CGAffineTransformIdentity;
CGAffineTransform CGAffineTransformMakeScale(CGFloat sx, CGFloat sy);
VISTREL_EXTERN_C_END
