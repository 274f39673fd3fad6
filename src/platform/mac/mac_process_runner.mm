#include "platform/mac/mac_process_runner.h"

#import <Foundation/Foundation.h>

#include "platform/mac/mac_strings.h"

namespace vistrel {

std::optional<std::string> MacProcessRunner::start(const std::string& executable,
                                                   const std::vector<std::string>& arguments) {
    NSMutableArray<NSString*>* list = [NSMutableArray arrayWithCapacity:arguments.size()];
    for (const std::string& argument : arguments)
        [list addObject:nsString(argument)];
    NSTask* task = [[NSTask alloc] init];
    task.executableURL = [NSURL fileURLWithPath:nsString(executable)];
    task.arguments = list;
    NSError* error = nil;
    if ([task launchAndReturnError:&error]) return std::nullopt;
    return describe(error);
}

}  // namespace vistrel
