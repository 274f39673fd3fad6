#include "layouts/layout_store.h"

#include <algorithm>

#include "base/log.h"
#include "layouts/saved_layout_json.h"
#include "platform/platform.h"
#include "settings/preference_key.h"

namespace vistrel {

namespace {

constexpr std::string_view notWritten =
    "layouts: the saved layouts could not be written, the ones saved before are kept";

std::string savedKey() {
    return std::string(PreferenceKey::layoutsSaved);
}

std::vector<SavedLayout> written(DefaultsStore& store, std::vector<SavedLayout> layouts) {
    // A list that cannot be encoded is not written; the caller still shows it.
    if (auto text = LayoutStore::encode(layouts)) {
        const DefaultsValue value(std::move(*text));
        store.set(savedKey(), value);
        // A store can refuse a value (a full disk, a value a profile enforces): the list saved
        // before stays, and the caller still shows the new one.
        if (store.object(savedKey()) != value) Log::error(notWritten);
    }
    return layouts;
}

}  // namespace

std::vector<SavedLayout> LayoutStore::load(DefaultsStore& store) {
    const DefaultsValue value = store.object(savedKey());
    if (value.isNone()) return {};
    const auto text = value.string();
    const double now = SavedLayout::dateSinceReference(platform().clock.now());
    auto layouts = text ? SavedLayoutJSON::decode(*text, now) : std::nullopt;
    if (!layouts) {
        Log::error("layouts: the saved layouts are unreadable; reading them as none");
        return {};
    }
    return std::move(*layouts);
}

std::optional<std::string> LayoutStore::encode(const std::vector<SavedLayout>& layouts) {
    return SavedLayoutJSON::encode(layouts);
}

std::vector<SavedLayout> LayoutStore::add(DefaultsStore& store, const SavedLayout& layout) {
    auto layouts = load(store);
    layouts.push_back(layout);
    return written(store, std::move(layouts));
}

std::vector<SavedLayout> LayoutStore::replace(DefaultsStore& store,
                                              std::vector<SavedLayout> layouts) {
    return written(store, std::move(layouts));
}

bool LayoutStore::contains(DefaultsStore& store, const UUID& id) {
    const auto layouts = load(store);
    return std::any_of(layouts.begin(), layouts.end(),
                       [&](const SavedLayout& layout) { return layout.id == id; });
}

std::vector<SavedLayout> LayoutStore::remove(DefaultsStore& store, const UUID& id) {
    auto layouts = load(store);
    std::erase_if(layouts, [&](const SavedLayout& layout) { return layout.id == id; });
    return written(store, std::move(layouts));
}

}  // namespace vistrel
