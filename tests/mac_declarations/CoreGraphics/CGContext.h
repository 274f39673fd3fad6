#pragma once

#include <CoreGraphics/CGAffineTransform.h>
#include <CoreGraphics/CGColor.h>
#include <CoreGraphics/CGGeometry.h>
#include <CoreGraphics/CGImage.h>

typedef struct CGContext* CGContextRef;

VISTREL_ENUM(int32_t, CGLineCap){
    kCGLineCapButt,
    kCGLineCapRound,
    kCGLineCapSquare,
};

VISTREL_ENUM(int32_t, CGLineJoin){
    kCGLineJoinMiter,
    kCGLineJoinRound,
    kCGLineJoinBevel,
};

VISTREL_EXTERN_C_BEGIN
void CGContextSaveGState(CGContextRef c);
void CGContextRestoreGState(CGContextRef c);

void CGContextTranslateCTM(CGContextRef c, CGFloat tx, CGFloat ty);
void CGContextScaleCTM(CGContextRef c, CGFloat sx, CGFloat sy);

void CGContextSetLineWidth(CGContextRef c, CGFloat width);
void CGContextSetLineCap(CGContextRef c, CGLineCap cap);
void CGContextSetLineJoin(CGContextRef c, CGLineJoin join);
void CGContextSetFillColorWithColor(CGContextRef c, CGColorRef color);
void CGContextSetStrokeColorWithColor(CGContextRef c, CGColorRef color);

void CGContextBeginPath(CGContextRef c);
void CGContextMoveToPoint(CGContextRef c, CGFloat x, CGFloat y);
void CGContextAddLineToPoint(CGContextRef c, CGFloat x, CGFloat y);
void CGContextAddCurveToPoint(CGContextRef c, CGFloat cp1x, CGFloat cp1y, CGFloat cp2x,
                              CGFloat cp2y, CGFloat x, CGFloat y);
void CGContextClosePath(CGContextRef c);

void CGContextFillPath(CGContextRef c);
void CGContextStrokePath(CGContextRef c);
void CGContextClip(CGContextRef c);
void CGContextClearRect(CGContextRef c, CGRect rect);

void CGContextSetTextMatrix(CGContextRef c, CGAffineTransform t);
void CGContextSetTextPosition(CGContextRef c, CGFloat x, CGFloat y);

void CGContextDrawImage(CGContextRef c, CGRect rect, CGImageRef image);
VISTREL_EXTERN_C_END
