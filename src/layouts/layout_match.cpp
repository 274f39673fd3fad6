#include "layouts/layout_match.h"

namespace vistrel {

namespace {

using Pairing = std::vector<std::optional<std::size_t>>;

// Gives each saved window that is still unpaired and accepted by `wanted` the first unused
// open window that `fits` it.
template <typename Wanted, typename Fits>
void pass(const std::vector<SavedLayout::Window>& saved, const std::vector<LayoutMatch::Open>& open,
          std::vector<bool>& used, Pairing& pairing, Wanted wanted, Fits fits) {
    for (std::size_t s = 0; s < saved.size(); ++s) {
        if (pairing[s] || !wanted(saved[s])) continue;
        for (std::size_t o = 0; o < open.size(); ++o) {
            if (used[o] || !fits(saved[s], open[o])) continue;
            pairing[s] = o;
            used[o] = true;
            break;
        }
    }
}

bool sameApp(const SavedLayout::Window& saved, const LayoutMatch::Open& open) {
    return saved.bundleID == open.bundleID;
}

}  // namespace

Pairing LayoutMatch::pair(const std::vector<SavedLayout::Window>& saved,
                          const std::vector<Open>& open) {
    Pairing pairing(saved.size());
    std::vector<bool> used(open.size(), false);
    // Exact titles first, over all saved windows, so that a titled window is never robbed of
    // its own window by an earlier window matched on the application alone.
    pass(
        saved, open, used, pairing,
        [](const SavedLayout::Window& window) { return !window.title.empty(); },
        [](const SavedLayout::Window& s, const Open& o) {
            return sameApp(s, o) && s.title == o.title;
        });
    pass(
        saved, open, used, pairing, [](const SavedLayout::Window&) { return true; }, sameApp);
    return pairing;
}

}  // namespace vistrel
