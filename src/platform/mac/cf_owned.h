#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <memory>
#include <optional>
#include <string>
#include <type_traits>

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

// A CFString as UTF-8 text; nothing when it cannot be converted.
inline std::optional<std::string> textOf(CFStringRef string) {
    const CFIndex capacity =
        CFStringGetMaximumSizeForEncoding(CFStringGetLength(string), kCFStringEncodingUTF8) + 1;
    std::string text(static_cast<std::size_t>(capacity), '\0');
    if (!CFStringGetCString(string, text.data(), capacity, kCFStringEncodingUTF8)) {
        return std::nullopt;
    }
    text.resize(std::char_traits<char>::length(text.c_str()));
    return text;
}

}  // namespace vistrel
