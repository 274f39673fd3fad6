#pragma once

#include <optional>
#include <string>
#include <vector>

#include "layouts/layout_template.h"
#include "layouts/saved_layout.h"
#include "layouts/shelf_layout.h"
#include "layouts/slot_ref.h"

namespace vistrel {

// What the shelf view draws; the layouts controller hands a new one over whenever something
// changes.
struct ShelfState {
    std::vector<SavedLayout> saved;         // as loaded when Mission Control opened
    std::vector<LayoutTemplate> templates;  // always LayoutTemplate::all()
    bool folded = false;                    // only the pill is shown
    std::optional<ShelfLayout::Item> hovered;
    std::optional<SlotRef> dropSlot;     // the slot under a window being dragged
    bool optionHeld = false;             // an Option-click on a saved cell deletes it
    std::optional<int> composeTemplate;  // the template being composed
    // While composing, per slot of that template: the bundle identifier of the window picked
    // for it, or none; empty when not composing.
    std::vector<std::optional<std::string>> composeApps;
    std::optional<std::string> screenID;  // the screen the shelf is shown on

    friend bool operator==(const ShelfState&, const ShelfState&) = default;
};

}  // namespace vistrel
