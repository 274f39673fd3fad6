#pragma once

#include "platform/canvas.h"
#include "platform/color.h"
#include "views/layouts_ui.h"

namespace vistrel {

// The shelf's look: a dark heads-up surface of frosted glass, white text, translucent white
// for what is idle and the feature's accent for what is selected. Sizes in points.
struct ShelfStyle {
    // A hairline just inside the glass's edge, so the shelf stands off a dark backdrop.
    static constexpr Color rim = {1, 1, 1, 0.14};
    static constexpr double rimWidth = 1;

    // Miniature screens: a translucent base, lighter under the pointer, tinted with the
    // accent and ringed while selected.
    static constexpr double screenRadius = 7;
    static constexpr Color screenIdle = {1, 1, 1, 0.08};
    static constexpr Color screenHovered = {1, 1, 1, 0.17};
    static constexpr Color screenSelected = LayoutsUI::accent.withAlpha(0.26);
    static constexpr Color screenSelectedHovered = LayoutsUI::accent.withAlpha(0.36);
    static constexpr Color screenEdge = {1, 1, 1, 0.13};
    static constexpr Color screenEdgeHovered = {1, 1, 1, 0.3};
    static constexpr double screenEdgeWidth = 1;
    static constexpr double selectedRingWidth = 2;
    // Between a miniature's edge and the windows drawn in it, and between neighbouring slots.
    static constexpr double screenInset = 4;
    static constexpr double slotGap = 1.5;

    // Miniature windows: the application's colour, translucent so that overlapping windows
    // show through each other, edged in a lighter shade of it.
    static constexpr double windowRadius = 3;
    static constexpr double windowFillAlpha = 0.55;
    static constexpr double windowEdgeLightening = 0.35;
    static constexpr double windowEdgeAlpha = 0.95;
    static constexpr double windowEdgeWidth = 1;
    // The icon is drawn at most this size, and only when the window leaves this much room
    // around it; below the smallest size the window shows its colour alone.
    static constexpr double iconLargest = 18;
    static constexpr double iconSmallest = 10;
    static constexpr double iconMargin = 3;

    // Empty template slots, and the next one to fill while composing.
    static constexpr Color slotFill = {1, 1, 1, 0.05};
    static constexpr Color slotEdge = {1, 1, 1, 0.38};
    static constexpr Color slotNumber = {1, 1, 1, 0.6};
    static constexpr double dropFillAlpha = 0.9;

    // The "Save current" cell's plus.
    static constexpr Color plus = {1, 1, 1, 0.85};
    static constexpr double plusArm = 9;
    static constexpr double plusWidth = 2;

    // The divider between the save cell and the templates, across the miniatures' middle.
    static constexpr Color divider = {1, 1, 1, 0.18};
    static constexpr double dividerWidth = 1;
    static constexpr double dividerInset = 8;  // from the miniatures' top and bottom

    // Labels under the cells: dim while idle, white under the pointer.
    static constexpr Color labelIdle = {1, 1, 1, 0.55};
    static constexpr Color labelHovered = {1, 1, 1, 0.96};
    static constexpr double labelSize = 10.5;
    static constexpr double labelBaseline = 14;  // below the miniature
    // A hovered name may reach half the spacing into each neighbour; longer names are cut.
    static constexpr double labelOverhang = 6;
    static constexpr double slotNumberSize = 9;

    // Option held: saved cells turn red and carry a delete badge on their top-left corner.
    static constexpr Color deleteRed = Color::fromRGB(0xFF453A);
    static constexpr double deleteBaseAlpha = 0.22;
    static constexpr double deleteBaseHoveredAlpha = 0.4;
    static constexpr Color deleteBadgeEdge = {0, 0, 0, 0.35};
    static constexpr double deleteBadgeDiameter = 16;
    static constexpr double deleteCrossArm = 3.2;
    static constexpr double deleteCrossWidth = 1.6;
    static constexpr double deleteBadgeEdgeWidth = 1.5;

    // The folded pill.
    static constexpr double pillTextSize = 12;
    static constexpr Color pillText = {1, 1, 1, 0.92};

    static Font labelFont() { return Font::system(labelSize, FontWeight::medium); }
    static Font slotNumberFont() { return Font::system(slotNumberSize, FontWeight::semibold); }
    static Font pillFont() { return Font::system(pillTextSize, FontWeight::semibold); }
};

}  // namespace vistrel
