#include "platform/mac/mac_launch_environment.h"

#import <Foundation/Foundation.h>

#include "platform/mac/mac_strings.h"

namespace vistrel {

std::vector<std::string> MacLaunchEnvironment::arguments() {
    std::vector<std::string> result;
    for (NSString* argument in NSProcessInfo.processInfo.arguments) {
        if (auto text = utf8Text(argument)) result.push_back(std::move(*text));
    }
    return result;
}

std::optional<std::string> MacLaunchEnvironment::variable(const std::string& name) {
    return utf8Text(NSProcessInfo.processInfo.environment[nsString(name)]);
}

}  // namespace vistrel
