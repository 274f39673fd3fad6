#pragma once

#include <string>
#include <vector>

#include "layouts/unit_rect.h"

namespace vistrel {

// A built-in arrangement of empty slots, offered on the shelf for composing a layout.
// Templates are never persisted.
struct LayoutTemplate {
    std::string id;    // a stable machine name, e.g. "main-side"
    std::string name;  // the label shown on the shelf
    std::vector<UnitRect> slots;

    // The five templates, in shelf order: halves, main + side, thirds, main + stack, grid.
    static const std::vector<LayoutTemplate>& all();

    friend bool operator==(const LayoutTemplate&, const LayoutTemplate&) = default;
};

}  // namespace vistrel
