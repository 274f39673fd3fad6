#pragma once

namespace vistrel {

// One slot of one built-in template: what hit-testing the shelf's miniatures yields.
struct SlotRef {
    int templateIndex = 0;  // index into LayoutTemplate::all()
    int slot = 0;           // index into that template's slots

    friend bool operator==(const SlotRef&, const SlotRef&) = default;
};

}  // namespace vistrel
