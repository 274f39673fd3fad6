#include "platform/mac/mac_script_runner.h"

#import <Foundation/Foundation.h>
#include <dispatch/dispatch.h>

#include "platform/mac/mac_strings.h"

namespace vistrel {

namespace {
NSString* const osascript = @"/usr/bin/osascript";
}  // namespace

std::optional<std::string> MacScriptRunner::run(const std::string& script, double timeout) {
    NSTask* task = [[NSTask alloc] init];
    task.executableURL = [NSURL fileURLWithPath:osascript];
    NSString* const arguments[] = {@"-e", nsString(script)};
    task.arguments = [NSArray arrayWithObjects:arguments count:2];
    NSPipe* output = [NSPipe pipe];
    task.standardOutput = output;
    // The error text would fill a pipe nobody reads; the exit status says enough.
    task.standardError = [NSFileHandle fileHandleWithNullDevice];
    dispatch_semaphore_t ended = dispatch_semaphore_create(0);
    task.terminationHandler = ^(NSTask* finished) {
      (void)finished;
      dispatch_semaphore_signal(ended);
    };
    if (![task launchAndReturnError:nil]) return std::nullopt;
    const auto wait = static_cast<int64_t>(timeout * NSEC_PER_SEC);
    if (dispatch_semaphore_wait(ended, dispatch_time(DISPATCH_TIME_NOW, wait)) != 0) {
        [task terminate];
        return std::nullopt;
    }
    if (task.terminationStatus != 0) return std::nullopt;
    NSData* bytes = [output.fileHandleForReading readDataToEndOfFile];
    return std::string(static_cast<const char*>(bytes.bytes), bytes.length);
}

}  // namespace vistrel
