#pragma once

#include <Foundation/NSObject.h>

@interface NSData : NSObject <NSCopying>
+ (instancetype)dataWithBytes:(nullable const void*)bytes length:(NSUInteger)length;
@property(readonly) const void* bytes;
@property(readonly) NSUInteger length;
@end
