#pragma once

#include <Foundation/NSData.h>
#include <Foundation/NSError.h>
#include <Foundation/NSURL.h>
#include <Foundation/NSURLRequest.h>
#include <Foundation/NSURLResponse.h>

VISTREL_MACOS(10.9)
@interface NSURLSessionTask : NSObject <NSCopying>
- (void)resume;
@end

VISTREL_MACOS(10.9)
@interface NSURLSessionDataTask : NSURLSessionTask
@end

VISTREL_MACOS(10.9)
@interface NSURLSessionUploadTask : NSURLSessionDataTask
@end

VISTREL_MACOS(10.9)
@interface NSURLSession : NSObject
@property(class, readonly, strong) NSURLSession* sharedSession;
// The handler runs on the session's delegate queue, never on the caller's thread; the
// request's own body is ignored in favour of the file's bytes.
- (NSURLSessionUploadTask*)
    uploadTaskWithRequest:(NSURLRequest*)request
                 fromFile:(NSURL*)fileURL
        completionHandler:(void (^)(NSData* _Nullable data, NSURLResponse* _Nullable response,
                                    NSError* _Nullable error))completionHandler;
@end
