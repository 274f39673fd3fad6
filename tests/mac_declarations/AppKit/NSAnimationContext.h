#pragma once

#include <Foundation/NSDate.h>

@interface NSAnimationContext : NSObject
+ (void)runAnimationGroup:(void (^)(NSAnimationContext* context))changes
        completionHandler:(nullable void (^)(void))completionHandler VISTREL_MACOS(10.7);
@property NSTimeInterval duration;
@end

// Objects whose property changes can be animated through their proxy.
@protocol NSAnimatablePropertyContainer
- (instancetype)animator;
@end
