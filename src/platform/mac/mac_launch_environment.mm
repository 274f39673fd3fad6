#include "platform/mac/mac_launch_environment.h"

#import <Foundation/Foundation.h>

#include "platform/mac/mac_strings.h"

namespace vistrel {

std::vector<std::string> MacLaunchEnvironment::arguments() {
    std::vector<std::string> result;
    for (NSString* argument in NSProcessInfo.processInfo.arguments)
        result.emplace_back(argument.UTF8String);
    return result;
}

std::optional<std::string> MacLaunchEnvironment::variable(const std::string& name) {
    NSString* value = NSProcessInfo.processInfo.environment[nsString(name)];
    if (value == nil) return std::nullopt;
    return std::string(value.UTF8String);
}

}  // namespace vistrel
