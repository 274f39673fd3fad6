#pragma once

#include <Foundation/NSObject.h>

@interface NSString : NSObject <NSCopying>
// Nil when the bytes are not UTF-8.
+ (nullable instancetype)stringWithUTF8String:(const char*)nullTerminatedCString;
@property(nullable, readonly) const char* UTF8String;
- (BOOL)isEqualToString:(NSString*)aString;
@end
