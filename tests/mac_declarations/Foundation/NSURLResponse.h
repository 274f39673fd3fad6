#pragma once

#include <Foundation/NSObject.h>

@interface NSURLResponse : NSObject <NSCopying>
@end

@interface NSHTTPURLResponse : NSURLResponse
@property(readonly) NSInteger statusCode;
@end
