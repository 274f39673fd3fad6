#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "layouts/saved_layout.h"
#include "windows/screen_info.h"

namespace vistrel {

// Which saved layout belongs to the displays connected now: a layout remembers the set of
// displays it was saved on (identifiers and arrangement), and the displays now are that set
// exactly when the same identifiers stand in the same places.
struct DisplayMatch {
    // Frames may differ by this much, in points, and still be the same arrangement.
    static constexpr double tolerance = 1;

    // The displays as a layout remembers them, ordered by identifier; displays without an
    // identifier are left out, as nothing could find them again.
    static std::vector<SavedLayout::Display> displaysOf(const std::vector<ScreenInfo>& screens);
    static bool same(const std::vector<SavedLayout::Display>& a,
                     const std::vector<SavedLayout::Display>& b);
    // The most recently saved layout for exactly these displays; nothing when none is, or
    // when no display has an identifier.
    static std::optional<std::size_t> latestFor(const std::vector<SavedLayout>& layouts,
                                                const std::vector<SavedLayout::Display>& now);
};

}  // namespace vistrel
