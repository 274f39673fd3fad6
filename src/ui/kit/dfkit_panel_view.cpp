#include "ui/kit/dfkit_panel_view.h"

#include <algorithm>
#include <utility>

#include "ui/kit/dfkit_palette.h"
#include "ui/kit/dfkit_scroll_view.h"

namespace vistrel {

namespace {
constexpr double borderInset = 0.5;
constexpr double borderWidth = 1;
}  // namespace

DFKitViews DFKitPanelView::setRows(DFKitViews rows) {
    DFKitViews previous = std::exchange(rows_, std::move(rows));
    for (const auto& row : rows_)
        adopt(*row);
    setFrame({frame().x, frame().y, rowWidth + 2 * margin, sizeThatFits(rowWidth).height});
    return previous;
}

void DFKitPanelView::fitHeight(double height) {
    std::vector<DFKitScrollView*> columns;
    for (const auto& row : rows_) {
        if (auto* column = dynamic_cast<DFKitScrollView*>(row.get())) {
            column->setMaxHeight(std::nullopt);
            columns.push_back(column);
        }
    }
    double excess = sizeThatFits(rowWidth).height - height;
    for (DFKitScrollView* column : columns) {
        if (excess <= 0) break;
        const double whole = column->contentHeight(rowWidth);
        const double kept = std::max(std::min(whole, leastScrollHeight), whole - excess);
        column->setMaxHeight(kept);
        excess -= whole - kept;
    }
    setFrame({frame().x, frame().y, rowWidth + 2 * margin, sizeThatFits(rowWidth).height});
}

bool DFKitPanelView::scroll(Point point, double dy) {
    for (const auto& row : rows_) {
        auto* column = dynamic_cast<DFKitScrollView*>(row.get());
        if (column && column->frame().contains(point)) return column->scrollBy(dy);
    }
    return false;
}

Size DFKitPanelView::sizeThatFits(double) const {
    double height = 2 * margin;
    for (const auto& row : rows_)
        height += row->sizeThatFits(rowWidth).height + row->bottomMargin();
    return {rowWidth + 2 * margin, height};
}

void DFKitPanelView::layout() {
    double y = margin;
    for (const auto& row : rows_) {
        const Size size = row->sizeThatFits(rowWidth);
        row->setFrame({margin + row->leadingInset(), y, size.width, size.height});
        y += size.height + row->bottomMargin();
    }
}

void DFKitPanelView::draw(Canvas& canvas, Appearance appearance) const {
    const Rect outline = bounds().insetBy(borderInset, borderInset);
    canvas.fill(Path::roundedRect(outline, cornerRadius), DFKit::surface.resolved(appearance));
    canvas.stroke(Path::roundedRect(outline, cornerRadius), DFKit::line.resolved(appearance),
                  {borderWidth});
}

std::vector<DFKitView*> DFKitPanelView::subviews() const {
    std::vector<DFKitView*> views;
    for (const auto& row : rows_)
        views.push_back(row.get());
    return views;
}

}  // namespace vistrel
