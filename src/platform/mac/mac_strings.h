#pragma once

#import <Foundation/Foundation.h>

#include <optional>
#include <string>

namespace vistrel {

// Text between the core's UTF-8 strings and Foundation's.
inline NSString* nsString(const std::string& value) {
    return [NSString stringWithUTF8String:value.c_str()] ?: @"";
}

inline std::string utf8(NSString* value) {
    return value != nil ? std::string(value.UTF8String) : std::string();
}

// An error's localizedDescription, for log lines and alerts.
inline std::string describe(NSError* error) {
    return error != nil ? utf8(error.localizedDescription) : std::string("unknown error");
}

}  // namespace vistrel
