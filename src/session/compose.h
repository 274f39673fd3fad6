#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "layouts/layout_template.h"
#include "session/engine_layouts.h"

namespace vistrel {

// A layout being composed inside Mission Control: the template and, per slot, the window
// clicked into it. Pure: the layouts controller keeps one while composing.
struct Compose {
    using Pick = EngineLayouts::Pick;

    int templateIndex = 0;
    std::vector<std::optional<Pick>> picks;  // one per slot of the template

    // A compose of `slots` empty slots for the template, taking over the windows picked so
    // far in `previous` (in slot order, empty slots skipped) into its first slots; those
    // that do not fit are dropped.
    static Compose start(int templateIndex, std::size_t slots,
                         const std::optional<Compose>& previous);

    // A second click on a picked window takes it out of its slot; any other window goes
    // into the first empty slot, or nowhere when every slot is filled.
    void toggle(const Pick& pick);
    // The picked windows in slot order, empty slots skipped.
    std::vector<Pick> picked() const;
    bool full() const;
    bool empty() const;
    std::optional<std::size_t> firstEmpty() const;

    // What the HUD says while composing, for example: "Halves: click the window for slot 2
    // of 2, or click Halves again to finish. Esc cancels."
    std::string caption(const LayoutTemplate& layoutTemplate) const;
};

}  // namespace vistrel
