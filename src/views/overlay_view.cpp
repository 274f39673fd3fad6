#include "views/overlay_view.h"

#include <algorithm>

#include "platform/display_list.h"

namespace vistrel {

namespace {

// A hovered button's face is its fill darkened this far towards black.
constexpr double hoverDarkening = 0.22;
// The glyph is stroked at a fifteenth of the button's width, never thinner than this, so
// that it stays legible on small buttons.
constexpr double glyphLineWidthDivisor = 15;
constexpr double minimumGlyphLineWidth = 1.3;
// Glyph proportions, in units of `s`, a fifth of the button's width.
constexpr double glyphUnitOfWidth = 0.2;
constexpr double barHalfLength = 1.15;
constexpr double arrowHalfDiagonal = 1.1;
constexpr double arrowHeadLength = 0.9;

// The X of close.
Path closeGlyph(Point c, double s) {
    return Path()
        .moveTo({c.x - s, c.y - s})
        .lineTo({c.x + s, c.y + s})
        .moveTo({c.x - s, c.y + s})
        .lineTo({c.x + s, c.y - s});
}

// The horizontal bar of minimize.
Path minimizeGlyph(Point c, double s) {
    const double half = barHalfLength * s;
    return Path().moveTo({c.x - half, c.y}).lineTo({c.x + half, c.y});
}

// Two outward arrow heads on the rising diagonal (upper-right and lower-left, y up).
Path maximizeGlyph(Point c, double s) {
    const double a = arrowHalfDiagonal * s;
    const double b = arrowHeadLength * s;
    return Path()
        .moveTo({c.x - a, c.y - a})
        .lineTo({c.x + a, c.y + a})
        .moveTo({c.x + a - b, c.y + a})
        .lineTo({c.x + a, c.y + a})
        .lineTo({c.x + a, c.y + a - b})
        .moveTo({c.x - a + b, c.y - a})
        .lineTo({c.x - a, c.y - a})
        .lineTo({c.x - a, c.y - a + b});
}

Path glyph(OverlayButton kind, Point centre, double s) {
    switch (kind) {
        case OverlayButton::close:
            return closeGlyph(centre, s);
        case OverlayButton::minimize:
            return minimizeGlyph(centre, s);
        case OverlayButton::maximize:
            return maximizeGlyph(centre, s);
    }
    return {};
}

}  // namespace

void OverlayView::configure(std::vector<Item> items) {
    items_ = std::move(items);
    setNeedsDisplay();
}

void OverlayView::setHovered(std::optional<OverlayButton> hovered) {
    hovered_ = hovered;
    setNeedsDisplay();
}

void OverlayView::attach(AgentWindow* window) {
    window_ = window;
    setNeedsDisplay();
}

void OverlayView::setNeedsDisplay() {
    if (window_ == nullptr) return;
    RecordingCanvas canvas;
    draw(canvas);
    window_->setContent(canvas.finish());
}

void OverlayView::draw(Canvas& canvas) const {
    for (const Item& item : items_) {
        drawButton(canvas, item.rect, item.look, item.button, hovered_ == item.button);
    }
}

double OverlayView::glyphLineWidth(double width) {
    return std::max(width / glyphLineWidthDivisor, minimumGlyphLineWidth);
}

void OverlayView::drawButton(Canvas& canvas, Rect rect, const Theme::Look& look, OverlayButton kind,
                             bool hovered) {
    const Color face = hovered ? look.fill.blended(hoverDarkening, Color::black()) : look.fill;
    canvas.fill(Path::oval(rect), face);

    const double halfRing = look.ringWidth / 2;
    canvas.stroke(Path::oval(rect.insetBy(halfRing, halfRing)), look.ring,
                  StrokeStyle{look.ringWidth, LineCap::butt, LineJoin::miter});

    const double r = rect.width;
    canvas.stroke(glyph(kind, rect.mid(), glyphUnitOfWidth * r), look.glyph,
                  StrokeStyle{glyphLineWidth(r), LineCap::round, LineJoin::round});
}

}  // namespace vistrel
