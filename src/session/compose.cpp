#include "session/compose.h"

#include <algorithm>

namespace vistrel {

Compose Compose::start(int templateIndex, std::size_t slots,
                       const std::optional<Compose>& previous) {
    Compose compose{templateIndex, std::vector<std::optional<Pick>>(slots)};
    if (!previous) return compose;
    const std::vector<Pick> carried = previous->picked();
    const std::size_t kept = std::min(carried.size(), slots);
    std::copy_n(carried.begin(), kept, compose.picks.begin());
    return compose;
}

void Compose::toggle(const Pick& pick) {
    auto same = std::find_if(picks.begin(), picks.end(), [&](const std::optional<Pick>& slot) {
        return slot && slot->window == pick.window;
    });
    if (same != picks.end()) {
        same->reset();
        return;
    }
    if (auto slot = firstEmpty()) picks[*slot] = pick;
}

std::vector<Compose::Pick> Compose::picked() const {
    std::vector<Pick> windows;
    for (const auto& slot : picks) {
        if (slot) windows.push_back(*slot);
    }
    return windows;
}

bool Compose::full() const {
    return std::all_of(picks.begin(), picks.end(),
                       [](const auto& slot) { return slot.has_value(); });
}

bool Compose::empty() const {
    return std::none_of(picks.begin(), picks.end(),
                        [](const auto& slot) { return slot.has_value(); });
}

std::optional<std::size_t> Compose::firstEmpty() const {
    auto found = std::find_if(picks.begin(), picks.end(), [](const auto& slot) { return !slot; });
    if (found == picks.end()) return std::nullopt;
    return static_cast<std::size_t>(found - picks.begin());
}

std::string Compose::caption(const LayoutTemplate& layoutTemplate) const {
    // A full compose finishes at once, so there is always an empty slot to name; a full one
    // reads as its last slot.
    const std::size_t next = firstEmpty().value_or(picks.empty() ? 0 : picks.size() - 1) + 1;
    std::string text = layoutTemplate.name + ": click the window for slot " + std::to_string(next) +
                       " of " + std::to_string(picks.size());
    if (!empty()) text += ", or click " + layoutTemplate.name + " again to finish";
    return text + ". Esc cancels.";
}

}  // namespace vistrel
