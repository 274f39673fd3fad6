#pragma once

#import <Foundation/Foundation.h>

#include <optional>
#include <string>

#include "platform/mac/cf_owned.h"

namespace vistrel {

// Text between the core's UTF-8 strings and Foundation's, by length in both directions:
// `UTF8String` would cut a string at an embedded NUL (so "applySettings\0x" would read as
// "applySettings") and answers NULL for a string it cannot convert.

// Nothing for nil, for an object that is not a string, and for a string that has no
// lossless UTF-8 form. An NSString is a CFString (toll-free bridged), so both convert with
// the one helper, `textOf`.
inline std::optional<std::string> utf8Text(id value) {
    if (value == nil || ![value isKindOfClass:[NSString class]]) return std::nullopt;
    return textOf((__bridge CFStringRef)value);
}

// The empty string wherever `utf8Text` answers nothing.
inline std::string utf8(id value) {
    return utf8Text(value).value_or(std::string());
}

// The empty string for bytes that are not UTF-8.
inline NSString* nsString(const std::string& value) {
    return [[NSString alloc] initWithBytes:value.data()
                                    length:value.size()
                                  encoding:NSUTF8StringEncoding]
               ?: @"";
}

// An error's localizedDescription, for log lines and alerts.
inline std::string describe(NSError* error) {
    return error != nil ? utf8(error.localizedDescription) : std::string("unknown error");
}

}  // namespace vistrel
