#pragma once

#include <optional>
#include <string>
#include <vector>

#include "layouts/saved_layout.h"
#include "platform/defaults.h"

namespace vistrel {

// The saved layouts in the shared preferences, as JSON text under "layouts.saved". Holds no
// state: every operation reads the stored list afresh, so two writers lose nothing of each
// other's unless they interleave between one's read and its write. A stored text that cannot
// be read as a whole counts as the empty list and is replaced by the next add or remove.
struct LayoutStore {
    // The stored list; empty when missing, not text or unreadable.
    static std::vector<SavedLayout> load(DefaultsStore& store);
    // The list as JSON text; nothing when it cannot be encoded.
    static std::optional<std::string> encode(const std::vector<SavedLayout>& layouts);
    // Appends the layout to the stored list and writes it back; returns the new list, which
    // is returned even when it could not be encoded (and so was not written).
    static std::vector<SavedLayout> add(DefaultsStore& store, const SavedLayout& layout);
    // Whether the stored list holds a layout with the id.
    static bool contains(DefaultsStore& store, const UUID& id);
    // Writes the list in place of the stored one (a rename, a new order); returns it, also
    // when it could not be encoded (and so was not written).
    static std::vector<SavedLayout> replace(DefaultsStore& store, std::vector<SavedLayout> layouts);
    // Drops every stored layout with the id and writes the rest back (also when none had it).
    static std::vector<SavedLayout> remove(DefaultsStore& store, const UUID& id);
};

}  // namespace vistrel
