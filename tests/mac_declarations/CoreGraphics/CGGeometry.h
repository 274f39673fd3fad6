#pragma once

#include <CoreFoundation/CFDictionary.h>
#include <CoreGraphics/CGBase.h>

struct CGPoint {
    CGFloat x;
    CGFloat y;
};

struct CGSize {
    CGFloat width;
    CGFloat height;
};

struct CGRect {
    CGPoint origin;
    CGSize size;
};

inline CGPoint CGPointMake(CGFloat x, CGFloat y) {
    return CGPoint{x, y};
}

inline CGSize CGSizeMake(CGFloat width, CGFloat height) {
    return CGSize{width, height};
}

inline CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    return CGRect{{x, y}, {width, height}};
}

VISTREL_EXTERN_C_BEGIN
bool CGRectMakeWithDictionaryRepresentation(CFDictionaryRef dict, CGRect* rect);
VISTREL_EXTERN_C_END
