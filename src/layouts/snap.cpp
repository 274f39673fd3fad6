#include "layouts/snap.h"

#include <cmath>

namespace vistrel {

namespace {

using Kind = Snap::Span::Kind;

// Event modifier flags (CGEventFlags).
constexpr std::uint64_t shiftFlag = 0x20000;
constexpr std::uint64_t controlFlag = 0x40000;
constexpr std::uint64_t optionFlag = 0x80000;
constexpr std::uint64_t commandFlag = 0x100000;
constexpr std::uint64_t consideredFlags = shiftFlag | controlFlag | optionFlag | commandFlag;

// Virtual key codes.
constexpr std::int64_t leftArrowKey = 123;
constexpr std::int64_t undoKey = 6;  // Z
constexpr std::int64_t rightArrowKey = 124;
constexpr std::int64_t downArrowKey = 125;
constexpr std::int64_t upArrowKey = 126;
constexpr std::int64_t returnKey = 36;

constexpr double half = 0.5;
constexpr double third = 1.0 / 3.0;
constexpr double twoThirds = 2.0 / 3.0;

bool about(double a, double b) {
    return std::abs(a - b) <= Snap::tolerance;
}

bool commandOnly(std::uint64_t flags) {
    return (flags & consideredFlags) == commandFlag;
}

template <std::size_t N>
Snap::Span span(double p, double s, const std::array<double, N>& shares) {
    if (about(p, 0) && about(s, 1)) return Snap::Span::whole();
    if (about(p, third) && about(s, third)) return Snap::Span::middle();
    for (double share : shares) {
        if (!about(s, share)) continue;
        if (about(p, 0)) return Snap::Span::lead(share);
        if (about(p + s, 1)) return Snap::Span::trail(share);
        return Snap::Span::whole();
    }
    return Snap::Span::whole();
}

// The width after `share` in the cycle half → two thirds → third → half.
double nextWidth(double share) {
    if (about(share, half)) return twoThirds;
    if (about(share, twoThirds)) return third;
    return half;
}

// Position and size along one axis.
struct Extent {
    double position;
    double size;
};

Extent extentOf(const Snap::Span& span) {
    switch (span.kind) {
        case Kind::lead:
            return {0, span.share};
        case Kind::trail:
            return {1 - span.share, span.share};
        case Kind::middle:
            return {third, third};
        case Kind::whole:
            break;
    }
    return {0, 1};
}

Extent horizontal(const Snap::Span& h, SnapKey key) {
    switch (key) {
        case SnapKey::left:
            return h.kind == Kind::lead ? Extent{0, nextWidth(h.share)} : Extent{0, half};
        case SnapKey::right:
            if (h.kind != Kind::trail) return {half, half};
            return {1 - nextWidth(h.share), nextWidth(h.share)};
        case SnapKey::up:
        case SnapKey::down:
            return extentOf(h);
        case SnapKey::fill:
            break;
    }
    return {0, 1};
}

Snap::Span vertical(const Snap::Span& v, SnapKey key) {
    switch (key) {
        case SnapKey::up:
            return v.kind == Kind::lead ? Snap::Span::whole() : Snap::Span::lead(half);
        case SnapKey::down:
            return v.kind == Kind::trail ? Snap::Span::whole() : Snap::Span::trail(half);
        case SnapKey::left:
        case SnapKey::right:
            return v;
        case SnapKey::fill:
            break;
    }
    return Snap::Span::whole();
}

std::string shareWord(double share) {
    if (about(share, half)) return "half";
    if (about(share, twoThirds)) return "two thirds";
    return "third";
}

// The name of an arrangement in the top or bottom half: a quarter, a corner or the centre.
std::string cornerName(const Snap::Span& h, const Snap::Span& v) {
    const std::string row = v.kind == Kind::lead ? "Top" : "Bottom";
    if (h.kind == Kind::middle) return row + " center";
    const std::string side = h.kind == Kind::lead ? " left" : " right";
    return row + side + (about(h.share, half) ? " quarter" : "");
}

std::string wholeWidthName(const Snap::Span& v) {
    switch (v.kind) {
        case Kind::lead:
            return "Top half";
        case Kind::trail:
            return "Bottom half";
        case Kind::middle:
            return "Custom";
        case Kind::whole:
            break;
    }
    return "Fill";
}

}  // namespace

std::optional<SnapKey> Snap::match(std::int64_t keyCode, std::uint64_t flags) {
    if (!commandOnly(flags)) return std::nullopt;
    switch (keyCode) {
        case leftArrowKey:
            return SnapKey::left;
        case rightArrowKey:
            return SnapKey::right;
        case upArrowKey:
            return SnapKey::up;
        case downArrowKey:
            return SnapKey::down;
        case returnKey:
            return SnapKey::fill;
        default:
            return std::nullopt;
    }
}

std::optional<int> Snap::layoutIndex(std::int64_t keyCode, std::uint64_t flags) {
    if (!commandOnly(flags)) return std::nullopt;
    for (std::size_t i = 0; i < digitKeys.size(); ++i) {
        if (digitKeys[i] == keyCode) return static_cast<int>(i);
    }
    return std::nullopt;
}

bool Snap::isUndo(std::int64_t keyCode, std::uint64_t flags) {
    return keyCode == undoKey && commandOnly(flags);
}

Snap::Spans Snap::spans(const UnitRect& rect) {
    return {span(rect.x, rect.w, widths), span(rect.y, rect.h, heights)};
}

UnitRect Snap::next(const UnitRect& from, SnapKey key) {
    if (key == SnapKey::fill) return {0, 0, 1, 1};
    const Spans current = spans(from);
    const Extent x = horizontal(current.h, key);
    const Extent y = extentOf(vertical(current.v, key));
    return {x.position, y.position, x.size, y.size};
}

std::string Snap::name(const UnitRect& rect) {
    const auto [h, v] = spans(rect);
    if (h.kind == Kind::whole) return wholeWidthName(v);
    if (v.kind == Kind::middle) return "Custom";
    if (v.kind == Kind::whole) {
        if (h.kind == Kind::middle) return "Center third";
        return (h.kind == Kind::lead ? "Left " : "Right ") + shareWord(h.share);
    }
    return cornerName(h, v);
}

}  // namespace vistrel
