#include "platform/mac/mac_archiver.h"

#include "platform/mac/mac_strings.h"

namespace vistrel {

namespace {
NSString* const ditto = @"/usr/bin/ditto";
}  // namespace

std::optional<std::string> MacArchiver::zip(const std::string& folder, const std::string& archive) {
    NSTask* task = [[NSTask alloc] init];
    task.executableURL = [NSURL fileURLWithPath:ditto];
    task.arguments = @[ @"-c", @"-k", @"--keepParent", nsString(folder), nsString(archive) ];
    NSError* error = nil;
    if (![task launchAndReturnError:&error]) return "ditto could not start: " + describe(error);
    [task waitUntilExit];
    if (task.terminationStatus != 0)
        return "ditto exited with status " + std::to_string(task.terminationStatus);
    return std::nullopt;
}

}  // namespace vistrel
