#pragma once

#include <Foundation/NSString.h>

@interface NSURL : NSObject <NSCopying>
+ (NSURL*)fileURLWithPath:(NSString*)path;
+ (nullable instancetype)URLWithString:(NSString*)URLString;
@property(nullable, readonly, copy) NSString* path;
@end
