#pragma once

#include <stdint.h>

#include <Foundation/NSProcessInfo.h>
#include <Foundation/NSString.h>

VISTREL_OPTIONS(uint64_t, NSActivityOptions){
    // NSActivityUserInitiated without NSActivityIdleSystemSleepDisabled.
    NSActivityUserInitiatedAllowingIdleSystemSleep = 0x00EFFFFFULL,
};

@interface NSProcessInfo (Activity)
// The answer is the activity's token; it lasts until endActivity: or the process ends.
- (id<NSObject>)beginActivityWithOptions:(NSActivityOptions)options
                                  reason:(NSString*)reason VISTREL_MACOS(10.9);
@end
