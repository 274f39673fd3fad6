#include "ui/kit/dfkit_scroll_view.h"

#include <algorithm>

#include "ui/kit/dfkit_palette.h"

namespace vistrel {

DFKitScrollView::DFKitScrollView(DFKitViews rows) : rows_(std::move(rows)) {
    for (const auto& row : rows_)
        adopt(*row);
}

void DFKitScrollView::setMaxHeight(std::optional<double> height) {
    maxHeight_ = height;
}

double DFKitScrollView::contentHeight(double width) const {
    double height = 0;
    for (const auto& row : rows_)
        height += row->sizeThatFits(width).height + row->bottomMargin();
    return height;
}

Size DFKitScrollView::sizeThatFits(double width) const {
    const double content = contentHeight(width);
    return {width, maxHeight_ ? std::min(content, *maxHeight_) : content};
}

double DFKitScrollView::maxOffset() const {
    return std::max(0.0, contentHeight(bounds().width) - bounds().height);
}

bool DFKitScrollView::scrollBy(double dy) {
    const double wanted = std::clamp(offset_ + dy, 0.0, maxOffset());
    if (wanted == offset_) return false;
    offset_ = wanted;
    layout();
    setNeedsDisplay();
    return true;
}

// Where more rows go on past the view, it keeps clear of the fade at that edge too; in a
// window too low for both, its top wins.
void DFKitScrollView::scrollToShow(const DFKitView& view) {
    const Rect shown = view.frameInRoot();
    const double top = shown.minY() - frameInRoot().minY() + offset_;
    const double bottom = shown.maxY() - frameInRoot().minY() + offset_;
    const double lowest =
        bottom - bounds().height + (bottom < contentHeight(bounds().width) ? fadeHeight : 0);
    const double highest = top > 0 ? top - fadeHeight : top;
    scrollBy(std::min(std::max(offset_, lowest), highest) - offset_);
}

void DFKitScrollView::layout() {
    offset_ = std::clamp(offset_, 0.0, maxOffset());
    double y = -offset_;
    for (const auto& row : rows_) {
        const Size size = row->sizeThatFits(bounds().width);
        row->setFrame({row->leadingInset(), y, size.width, size.height});
        y += size.height + row->bottomMargin();
    }
}

// The rows draw after this, inside the same clip: what is scrolled out is never seen.
void DFKitScrollView::draw(Canvas& canvas, Appearance) const {
    canvas.clip(Path::rect(bounds()));
}

std::optional<Rect> DFKitScrollView::knob() const {
    const double content = contentHeight(bounds().width);
    const double window = bounds().height;
    if (content <= window || window <= 0) return std::nullopt;
    const double track = window - 2 * knobInset;
    const double height = std::max(leastKnobHeight, track * window / content);
    const double y = knobInset + (track - height) * offset_ / maxOffset();
    return Rect{bounds().width - knobInset - knobWidth, y, knobWidth, height};
}

// The surface laid over the rows in bands of one point, opaque at the edge and clear
// `fadeHeight` points in.
void DFKitScrollView::drawFade(Canvas& canvas, Appearance appearance, bool top) const {
    const Color surface = DFKit::surface.resolved(appearance);
    const auto bands = static_cast<int>(fadeHeight);
    for (int band = 0; band < bands; ++band) {
        const double y = top ? band : bounds().height - band - 1;
        Color color = surface;
        color.alpha *= 1.0 - static_cast<double>(band) / bands;
        canvas.fill(Path::rect({0, y, bounds().width, 1}), color);
    }
}

void DFKitScrollView::drawAbove(Canvas& canvas, Appearance appearance) const {
    if (hidesAbove()) drawFade(canvas, appearance, true);
    if (hidesBelow()) drawFade(canvas, appearance, false);
    if (const auto rect = knob())
        canvas.fill(Path::roundedRect(*rect, knobWidth / 2), DFKit::inkMuted.resolved(appearance));
}

std::vector<DFKitView*> DFKitScrollView::subviews() const {
    std::vector<DFKitView*> views;
    for (const auto& row : rows_)
        views.push_back(row.get());
    return views;
}

}  // namespace vistrel
