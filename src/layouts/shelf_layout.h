#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "layouts/layout_template.h"
#include "layouts/slot_ref.h"
#include "platform/geometry.h"

namespace vistrel {

// The geometry of the layouts shelf shown at the bottom of the screen while Mission Control
// is open: a row of cells (saved layouts, up to nine, then the save cell, a divider and the
// templates), folded to a pill while the pointer is away. Computed once per showing; answers
// the controller's hit-tests. Coordinates are global, top-left origin, y down.
struct ShelfLayout {
    // What a cell stands for.
    struct Item {
        enum class Kind { saved, layoutTemplate, save };
        Kind kind = Kind::save;
        int index = 0;  // into the saved layouts or LayoutTemplate::all(); 0 for the save cell

        static Item saved(int index) { return {Kind::saved, index}; }
        static Item layoutTemplate(int index) { return {Kind::layoutTemplate, index}; }
        static Item save() { return {Kind::save, 0}; }

        friend bool operator==(const Item&, const Item&) = default;
    };

    struct Cell {
        Item item;
        Rect rect;    // the whole cell
        Rect screen;  // the miniature screen: the upper part of the cell, same origin

        friend bool operator==(const Cell&, const Cell&) = default;
    };

    // Sizes in points.
    static constexpr Size cellSize{96, 80};
    static constexpr Size screenSize{96, 60};
    static constexpr Size pillSize{112, 26};
    static constexpr double cellSpacing = 12;
    static constexpr double padding = 14;
    static constexpr double dividerGap = 25;
    static constexpr double margin = 16;  // between the shelf and the area's sides and bottom
    static constexpr double height = 102;
    static constexpr int maxSavedCells = 9;  // one per digit key

    Rect frame;
    std::vector<Cell> cells;        // saved layouts, then the save cell, then the templates
    std::optional<double> divider;  // x of the divider; none without templates
    Rect pill;

    // The shelf for `saved` saved layouts and `templates` templates, centred above the bottom
    // of `area` (a screen's visible frame). Saved layouts that do not fit get no cell.
    static ShelfLayout make(int saved, int templates, Rect area);

    // The cell under the point (its rectangle grown by 6 points), inside the frame only.
    std::optional<Cell> cell(Point at) const;
    // The template slot whose part of a template cell's miniature holds the point.
    std::optional<SlotRef> slot(Point at, const std::vector<LayoutTemplate>& templates) const;
    // Whether the unfolded shelf stays unfolded with the pointer at the point: near the frame,
    // or in the band over and far below the pill.
    bool keepsOpen(Point at) const;

    friend bool operator==(const ShelfLayout&, const ShelfLayout&) = default;
};

}  // namespace vistrel

template <>
struct std::hash<vistrel::ShelfLayout::Item> {
    std::size_t operator()(const vistrel::ShelfLayout::Item& item) const noexcept {
        constexpr int kinds = 3;
        return std::hash<long long>{}(static_cast<long long>(item.index) * kinds +
                                      static_cast<int>(item.kind));
    }
};
