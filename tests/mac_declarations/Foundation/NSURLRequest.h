#pragma once

#include <Foundation/NSDate.h>
#include <Foundation/NSURL.h>

@interface NSURLRequest : NSObject <NSCopying>
+ (instancetype)requestWithURL:(NSURL*)URL;
@end

@interface NSMutableURLRequest : NSURLRequest
@property(copy) NSString* HTTPMethod;
@property NSTimeInterval timeoutInterval;
- (void)setValue:(nullable NSString*)value forHTTPHeaderField:(NSString*)field;
@end
