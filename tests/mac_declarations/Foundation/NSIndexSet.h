#pragma once

#include <Foundation/NSObject.h>

@interface NSIndexSet : NSObject <NSCopying>
+ (instancetype)indexSetWithIndex:(NSUInteger)value;
@end
