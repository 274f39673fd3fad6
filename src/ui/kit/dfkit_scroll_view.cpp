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

void DFKitScrollView::scrollToShow(Rect rect) {
    if (rect.minY() < offset_) {
        scrollBy(rect.minY() - offset_);
    } else if (rect.maxY() > offset_ + bounds().height) {
        scrollBy(rect.maxY() - offset_ - bounds().height);
    }
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

void DFKitScrollView::drawAbove(Canvas& canvas, Appearance appearance) const {
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
