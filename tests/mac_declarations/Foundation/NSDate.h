#pragma once

#include <Foundation/NSObject.h>

typedef double NSTimeInterval;

@interface NSDate : NSObject <NSCopying>
+ (instancetype)date;
@property(readonly) NSTimeInterval timeIntervalSince1970;
@end
