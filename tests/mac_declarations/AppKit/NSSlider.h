#pragma once

#include <AppKit/NSControl.h>

@interface NSSlider : NSControl
+ (instancetype)sliderWithValue:(double)value
                       minValue:(double)minValue
                       maxValue:(double)maxValue
                         target:(nullable id)target
                         action:(nullable SEL)action VISTREL_MACOS(10.12);
@end
