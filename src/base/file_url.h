#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vistrel {

// File URLs ("file:///Users/ada/Notes%20old.txt") as the accessibility interface and
// Finder's POSIX paths give files: a local path, percent-encoded, a folder's ending in '/'.
struct FileURL {
    // The local path of a "file://" URL with no host or "localhost"; nothing for another
    // scheme or host, a malformed escape, or a path that is not absolute.
    static std::optional<std::string> path(std::string_view url);
    // The URL of an absolute local path.
    static std::string of(std::string_view path);
    // What the Finder shows as the item's name: the last part of its path, or "/" for the
    // disk's top; the URL itself when it is not a file URL.
    static std::string name(std::string_view url);
    // Whether two URLs name the same file: the same path once decoded, a folder's final '/'
    // or not. Texts that are not file URLs are the same only when equal.
    static bool same(std::string_view a, std::string_view b);
};

}  // namespace vistrel
