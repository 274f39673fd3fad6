#include "layouts/display_match.h"

#include <algorithm>
#include <cmath>

namespace vistrel {

namespace {

bool near(double a, double b) {
    return std::abs(a - b) <= DisplayMatch::tolerance;
}

bool sameFrame(Rect a, Rect b) {
    return near(a.x, b.x) && near(a.y, b.y) && near(a.width, b.width) && near(a.height, b.height);
}

}  // namespace

std::vector<SavedLayout::Display> DisplayMatch::displaysOf(const std::vector<ScreenInfo>& screens) {
    std::vector<SavedLayout::Display> displays;
    for (const ScreenInfo& screen : screens) {
        if (!screen.id.empty()) displays.push_back({screen.id, screen.frame});
    }
    std::sort(displays.begin(), displays.end(),
              [](const auto& a, const auto& b) { return a.id < b.id; });
    return displays;
}

bool DisplayMatch::same(const std::vector<SavedLayout::Display>& a,
                        const std::vector<SavedLayout::Display>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& x, const auto& y) {
        return x.id == y.id && sameFrame(x.frame, y.frame);
    });
}

std::optional<std::size_t> DisplayMatch::latestFor(const std::vector<SavedLayout>& layouts,
                                                   const std::vector<SavedLayout::Display>& now) {
    if (now.empty()) return std::nullopt;
    std::optional<std::size_t> latest;
    for (std::size_t i = 0; i < layouts.size(); ++i) {
        if (!same(layouts[i].displays, now)) continue;
        if (!latest || layouts[i].created > layouts[*latest].created) latest = i;
    }
    return latest;
}

}  // namespace vistrel
