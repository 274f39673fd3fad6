#include "tracking/overlay_layout.h"

#include <algorithm>

namespace vistrel {

namespace {

// Where the first button's centre sits relative to the thumbnail's top-left corner.
constexpr double firstButtonLeftOfCorner = 3;
constexpr double firstButtonAboveCorner = 2;
// The safe zone pads the strip by a quarter of a button on every side ...
constexpr double stripPaddingInButtons = 0.25;
// ... and reaches into the thumbnail up to four buttons deep (or half the thumbnail).
constexpr double wedgeDepthInButtons = 4;

int raw(OverlayButton button) {
    return static_cast<int>(button);
}

}  // namespace

OverlayLayout OverlayLayout::make(Rect thumb, double size,
                                  const std::vector<OverlayButton>& enabled, double gap) {
    OverlayLayout layout;
    layout.items.reserve(enabled.size());
    const bool hasClose =
        std::find(enabled.begin(), enabled.end(), OverlayButton::close) != enabled.end();
    if (hasClose) layout.items.push_back({OverlayButton::close, {}});
    for (OverlayButton button : enabled) {
        if (button != OverlayButton::close) layout.items.push_back({button, {}});
    }
    const auto others = layout.items.begin() + (hasClose ? 1 : 0);
    std::stable_sort(others, layout.items.end(),
                     [](const Item& a, const Item& b) { return raw(a.kind) < raw(b.kind); });

    const Rect first{thumb.minX() - firstButtonLeftOfCorner - size / 2,
                     thumb.minY() - firstButtonAboveCorner - size / 2, size, size};
    for (std::size_t i = 0; i < layout.items.size(); ++i) {
        layout.items[i].rect = first.offsetBy(static_cast<double>(i) * (size + gap), 0);
    }
    if (layout.items.empty()) return layout;

    Rect strip = layout.items.front().rect;
    for (const Item& item : layout.items)
        strip = strip.unite(item.rect);
    layout.safeZone = zone(thumb, strip, size);
    return layout;
}

std::vector<Point> OverlayLayout::zone(Rect thumb, Rect buttons, double size) {
    const double margin = size * stripPaddingInButtons;
    const Rect pad = buttons.insetBy(-margin, -margin);
    const double wedge = wedgeDepthInButtons * size;
    const double reachX =
        std::max(std::min(wedge, thumb.width / 2), size + pad.maxX() - thumb.minX());
    const double reachY =
        std::max(std::min(wedge, thumb.height / 2), size + pad.maxY() - thumb.minY());
    return {
        {pad.minX(), pad.minY()},
        {pad.maxX(), pad.minY()},
        {thumb.minX() + reachX, thumb.minY()},
        {thumb.minX(), thumb.minY() + reachY},
        {pad.minX(), pad.maxY()},
    };
}

bool polygonContains(const std::vector<Point>& polygon, Point point) {
    bool inside = false;
    const std::size_t count = polygon.size();
    for (std::size_t i = 0, j = count - 1; i < count; j = i++) {
        const Point a = polygon[i];
        const Point b = polygon[j];
        // A horizontal edge fails the first test, so the division never sees a zero.
        if ((point.y < a.y) != (point.y < b.y) &&
            point.x < a.x + (point.y - a.y) * (b.x - a.x) / (b.y - a.y)) {
            inside = !inside;
        }
    }
    return inside;
}

}  // namespace vistrel
