#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "layouts/unit_rect.h"

namespace vistrel {

// The snap keys: Command with an arrow key or Return.
enum class SnapKey { left, right, up, down, fill };

// Snapping the hovered window to halves, thirds, two thirds and quarters of its screen, and
// Command-1 to Command-9 for the saved layouts. Pure: recognises keys, classifies a unit
// rectangle along each axis, computes where the next press puts it and names it.
struct Snap {
    // How a unit rectangle sits along one axis.
    struct Span {
        enum class Kind {
            lead,    // touches the start (left or top) with one of the axis's shares
            trail,   // touches the end (right or bottom) with one of the axis's shares
            whole,   // spans the axis, and whatever fits no other case
            middle,  // the middle third
        };
        Kind kind = Kind::whole;
        double share = 0;  // the table share that matched, for lead and trail

        static Span lead(double share) { return {Kind::lead, share}; }
        static Span trail(double share) { return {Kind::trail, share}; }
        static Span whole() { return {Kind::whole, 0}; }
        static Span middle() { return {Kind::middle, 0}; }

        friend bool operator==(const Span&, const Span&) = default;
    };

    struct Spans {
        Span h;
        Span v;

        friend bool operator==(const Spans&, const Spans&) = default;
    };

    // Values within this distance count as equal.
    static constexpr double tolerance = 0.02;
    // Horizontal shares, in the order a repeated Command-Left or Command-Right cycles them.
    static constexpr std::array<double, 3> widths{0.5, 2.0 / 3.0, 1.0 / 3.0};
    // Vertical shares.
    static constexpr std::array<double, 1> heights{0.5};
    // Virtual key codes of the digits 1 to 9.
    static constexpr std::array<std::int64_t, 9> digitKeys{18, 19, 20, 21, 23, 22, 26, 28, 25};

    // The snap key of a key-down, when Command is the only one of Shift, Control, Option and
    // Command held (Caps Lock and other flags do not matter).
    static std::optional<SnapKey> match(std::int64_t keyCode, std::uint64_t flags);
    // 0 for Command-1 up to 8 for Command-9, under the same modifier rule.
    static std::optional<int> layoutIndex(std::int64_t keyCode, std::uint64_t flags);
    // Command-Z, Command alone: undo the last restore, arrangement or snap.
    static bool isUndo(std::int64_t keyCode, std::uint64_t flags);
    static Spans spans(const UnitRect& rect);
    // Where `key` puts a window now at `from`: repeated left or right presses cycle through
    // a half, two thirds and a third; up and down halve, then restore, the height.
    static UnitRect next(const UnitRect& from, SnapKey key);
    // "Left half", "Top right quarter", "Center third", "Fill", "Custom" and so on.
    static std::string name(const UnitRect& rect);
};

}  // namespace vistrel
