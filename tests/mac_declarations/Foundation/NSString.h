#pragma once

#include <Foundation/NSObject.h>

typedef NSUInteger NSStringEncoding;
enum : NSStringEncoding {
    NSUTF8StringEncoding = 4,
};

@interface NSString : NSObject <NSCopying>
// Nil when the bytes are not UTF-8.
+ (nullable instancetype)stringWithUTF8String:(const char*)nullTerminatedCString;
@property(nullable, readonly) const char* UTF8String;
- (BOOL)isEqualToString:(NSString*)aString;
// Nil when the bytes are not valid in the encoding; embedded NULs are kept.
- (nullable instancetype)initWithBytes:(const void*)bytes
                                length:(NSUInteger)len
                              encoding:(NSStringEncoding)encoding;
// Nil when the string has no lossless form in the encoding.
@end
