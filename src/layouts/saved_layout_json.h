#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "layouts/saved_layout.h"

namespace vistrel {

// The persisted form of saved layouts: a JSON array of layout objects, keys sorted, no
// pretty printing, UTF-8. Layout keys "created" (seconds since 2001-01-01 UTC), "id"
// (upper-case hyphenated UUID), "name", "windows", "displays" (left out when none: each "id"
// and "frame", a rect of points); window keys "app", "bundleID", "display"
// (left out when unknown), "rect", "title"; rect keys "h", "w", "x", "y".
//
// Reading is lenient only where a missing (or null) key has a meaning: no "id" makes a fresh
// UUID, no "name" reads "Layout", no "created" reads `now`, no "display" reads none, no
// "displays" reads none (a file written before layouts remembered their displays). Anything
// else that is missing or of the wrong type makes the whole text unreadable. Unknown keys
// are ignored.
struct SavedLayoutJSON {
    // Nothing when a number is not finite or a text is not valid UTF-8.
    static std::optional<std::string> encode(const std::vector<SavedLayout>& layouts);
    // Nothing when the text is not a readable list; `now` is in seconds since 2001-01-01.
    static std::optional<std::vector<SavedLayout>> decode(std::string_view text, double now);
};

}  // namespace vistrel
