#pragma once

#include <Foundation/Foundation.h>

@protocol SPUUserDriver <NSObject>
@end

@protocol SPUStandardUserDriverDelegate <NSObject>
@end

@interface SPUStandardUserDriver : NSObject <SPUUserDriver>
// The driver holds its delegate weakly: the caller keeps it alive.
- (instancetype)initWithHostBundle:(NSBundle*)hostBundle
                          delegate:(nullable id<SPUStandardUserDriverDelegate>)delegate;
@end
