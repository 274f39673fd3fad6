#pragma once

#include <CoreFoundation/CFAttributedString.h>
#include <CoreGraphics/CGContext.h>

typedef const struct __CTLine* CTLineRef;

VISTREL_EXTERN_C_BEGIN
CTLineRef CTLineCreateWithAttributedString(CFAttributedStringRef attrString);
void CTLineDraw(CTLineRef line, CGContextRef context);
// The width; the ascent, descent and leading go where the pointers say (each may be null).
double CTLineGetTypographicBounds(CTLineRef line, CGFloat* ascent, CGFloat* descent,
                                  CGFloat* leading);
VISTREL_EXTERN_C_END
