#pragma once

#include <Foundation/NSString.h>
#include <Foundation/NSTimer.h>

typedef NSString* NSRunLoopMode;

VISTREL_EXTERN_C_BEGIN
extern NSRunLoopMode const NSRunLoopCommonModes;
VISTREL_EXTERN_C_END

@interface NSRunLoop : NSObject
@property(class, readonly, strong) NSRunLoop* mainRunLoop;
- (void)addTimer:(NSTimer*)timer forMode:(NSRunLoopMode)mode;
@end
