#pragma once

#include <Foundation/NSObject.h>
#include <Foundation/NSString.h>

typedef NSString* NSColorSpaceName;

VISTREL_EXTERN_C_BEGIN
extern NSColorSpaceName const NSDeviceRGBColorSpace;
VISTREL_EXTERN_C_END

// Zero: alpha last and premultiplied, integer samples.
typedef NSUInteger NSBitmapFormat;

@interface NSImageRep : NSObject <NSCopying>
@end

@interface NSBitmapImageRep : NSImageRep
// Null planes: the bitmap allocates its own memory.
- (nullable instancetype)initWithBitmapDataPlanes:(unsigned char* _Nullable* _Nullable)planes
                                       pixelsWide:(NSInteger)width
                                       pixelsHigh:(NSInteger)height
                                    bitsPerSample:(NSInteger)bps
                                  samplesPerPixel:(NSInteger)spp
                                         hasAlpha:(BOOL)alpha
                                         isPlanar:(BOOL)isPlanar
                                   colorSpaceName:(NSColorSpaceName)colorSpaceName
                                     bitmapFormat:(NSBitmapFormat)bitmapFormat
                                      bytesPerRow:(NSInteger)rBytes
                                     bitsPerPixel:(NSInteger)pBits VISTREL_MACOS(10.4);
@property(nullable, readonly) unsigned char* bitmapData;
@end
