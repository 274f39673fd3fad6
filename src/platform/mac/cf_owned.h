#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <memory>
#include <optional>
#include <string>
#include <type_traits>

#include "base/text_by_length.h"

namespace vistrel {

// Releases a Core Foundation object when it goes out of scope.
struct CFReleaser {
    void operator()(CFTypeRef object) const {
        if (object != nullptr) CFRelease(object);
    }
};

// Owns one reference to a Core Foundation object (the create and copy rules).
template <typename Ref>
using CFOwned = std::unique_ptr<std::remove_pointer_t<Ref>, CFReleaser>;

// A CFString as UTF-8 text, by its length (an embedded NUL and what follows it stay);
// nothing for no string and for one that cannot be converted whole.
inline std::optional<std::string> textOf(CFStringRef string) {
    if (string == nullptr) return std::nullopt;
    const CFIndex length = CFStringGetLength(string);
    return textByLength(length, [string, length](UInt8* buffer, CFIndex capacity, CFIndex& used) {
        // A loss byte of 0: the conversion stops at the first character it cannot convert.
        return CFStringGetBytes(string, CFRangeMake(0, length), kCFStringEncodingUTF8, 0, false,
                                buffer, capacity, &used);
    });
}

}  // namespace vistrel
