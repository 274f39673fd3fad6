#pragma once

#include <Foundation/NSGeometry.h>
#include <Foundation/NSObject.h>

@interface NSBezierPath : NSObject <NSCopying>
+ (NSBezierPath*)bezierPathWithRoundedRect:(NSRect)rect
                                   xRadius:(CGFloat)xRadius
                                   yRadius:(CGFloat)yRadius VISTREL_MACOS(10.5);
- (void)fill;
- (void)stroke;
@end
