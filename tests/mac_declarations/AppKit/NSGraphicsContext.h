#pragma once

#include <AppKit/NSBitmapImageRep.h>
#include <CoreGraphics/CGContext.h>

@interface NSGraphicsContext : NSObject
@property(class, nullable, strong) NSGraphicsContext* currentContext;
// Nil when Core Graphics cannot draw into the bitmap's format.
+ (nullable NSGraphicsContext*)graphicsContextWithBitmapImageRep:(NSBitmapImageRep*)bitmapRep;
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;
@property(readonly) CGContextRef CGContext VISTREL_MACOS(10.10);
@end
