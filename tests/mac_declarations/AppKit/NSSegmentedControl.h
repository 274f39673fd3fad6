#pragma once

#include <AppKit/NSControl.h>
#include <Foundation/NSArray.h>
#include <Foundation/NSString.h>

VISTREL_ENUM(NSUInteger, NSSegmentSwitchTracking){
    NSSegmentSwitchTrackingSelectOne = 0,
};

@interface NSSegmentedControl : NSControl
+ (instancetype)segmentedControlWithLabels:(NSArray<NSString*>*)labels
                              trackingMode:(NSSegmentSwitchTracking)trackingMode
                                    target:(nullable id)target
                                    action:(nullable SEL)action VISTREL_MACOS(10.12);
// -1 when no segment is selected.
@property NSInteger selectedSegment;
@end
