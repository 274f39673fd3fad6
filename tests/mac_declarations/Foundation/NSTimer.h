#pragma once

#include <Foundation/NSDate.h>

@interface NSTimer : NSObject
// A timer that is not scheduled yet: add it to a run loop.
+ (NSTimer*)timerWithTimeInterval:(NSTimeInterval)interval
                          repeats:(BOOL)repeats
                            block:(void (^)(NSTimer* timer))block VISTREL_MACOS(10.12);
@property NSTimeInterval tolerance VISTREL_MACOS(10.9);
- (void)invalidate;
@end
