#pragma once

#include <stddef.h>

#include <CoreGraphics/CGColorSpace.h>
#include <CoreGraphics/CGDataProvider.h>

typedef struct CGImage* CGImageRef;

VISTREL_ENUM(uint32_t, CGImageAlphaInfo){
    kCGImageAlphaNone = 0,
    kCGImageAlphaPremultipliedLast = 1,
    kCGImageAlphaPremultipliedFirst = 2,
    kCGImageAlphaLast = 3,
    kCGImageAlphaFirst = 4,
};

typedef uint32_t CGBitmapInfo;

VISTREL_ENUM(int32_t, CGColorRenderingIntent){
    kCGRenderingIntentDefault = 0,
};

VISTREL_EXTERN_C_BEGIN
CGImageRef CGImageCreate(size_t width, size_t height, size_t bitsPerComponent, size_t bitsPerPixel,
                         size_t bytesPerRow, CGColorSpaceRef space, CGBitmapInfo bitmapInfo,
                         CGDataProviderRef provider, const CGFloat* decode, bool shouldInterpolate,
                         CGColorRenderingIntent intent);
VISTREL_EXTERN_C_END
