#include "layouts/layout_match.h"

#include "base/file_url.h"

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

// Two windows known to show different files are not the same window.
bool compatible(const SavedLayout::Window& saved, const LayoutMatch::Open& open) {
    return saved.bundleID == open.bundleID &&
           !(saved.document && open.document && !FileURL::same(*saved.document, *open.document));
}

bool sameDocument(const SavedLayout::Window& saved, const LayoutMatch::Open& open) {
    return saved.bundleID == open.bundleID && saved.document && open.document &&
           FileURL::same(*saved.document, *open.document);
}

}  // namespace

Pairing LayoutMatch::pair(const std::vector<SavedLayout::Window>& saved,
                          const std::vector<Open>& open) {
    Pairing pairing(saved.size());
    std::vector<bool> used(open.size(), false);
    // Files first, then exact titles, each over all saved windows, so that a window is never
    // robbed of its own by an earlier one matched on a weaker rule.
    pass(
        saved, open, used, pairing,
        [](const SavedLayout::Window& window) { return window.document.has_value(); },
        sameDocument);
    pass(
        saved, open, used, pairing,
        [](const SavedLayout::Window& window) { return !window.title.empty(); },
        [](const SavedLayout::Window& s, const Open& o) {
            return compatible(s, o) && s.title == o.title;
        });
    pass(
        saved, open, used, pairing, [](const SavedLayout::Window&) { return true; }, compatible);
    return pairing;
}

}  // namespace vistrel
