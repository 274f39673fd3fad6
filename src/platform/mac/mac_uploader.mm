#include "platform/mac/mac_uploader.h"

#import <Foundation/Foundation.h>
#include <dispatch/dispatch.h>

#include <memory>

#include "platform/mac/mac_strings.h"

namespace vistrel {

namespace {
constexpr char failureQueueLabel[] = "com.quillmarsh.vistrel.upload-failure";
}  // namespace

void MacUploader::upload(const UploadRequest& request, Completion completion) {
    auto done = std::make_shared<Completion>(std::move(completion));
    NSURL* url = [NSURL URLWithString:nsString(request.url)];
    if (url == nil) {
        // Still off the main thread, as a session would answer.
        dispatch_async(dispatch_queue_create(failureQueueLabel, DISPATCH_QUEUE_SERIAL), ^{
          (*done)({std::string("unsupported URL"), 0, ""});
        });
        return;
    }
    NSMutableURLRequest* urlRequest = [NSMutableURLRequest requestWithURL:url];
    urlRequest.HTTPMethod = nsString(request.method);
    urlRequest.timeoutInterval = request.timeout;
    for (const auto& [name, value] : request.headers)
        [urlRequest setValue:nsString(value) forHTTPHeaderField:nsString(name)];
    NSURL* body = [NSURL fileURLWithPath:nsString(request.body)];
    NSURLSessionUploadTask* task = [NSURLSession.sharedSession
        uploadTaskWithRequest:urlRequest
                     fromFile:body
            completionHandler:^(NSData* data, NSURLResponse* response, NSError* error) {
              UploadResponse answer;
              if (error != nil) {
                  answer.error = describe(error);
              } else if ([response isKindOfClass:[NSHTTPURLResponse class]]) {
                  answer.status = static_cast<int>(((NSHTTPURLResponse*)response).statusCode);
              }
              if (data != nil)
                  answer.body.assign(static_cast<const char*>(data.bytes), data.length);
              (*done)(answer);
            }];
    [task resume];
}

}  // namespace vistrel
