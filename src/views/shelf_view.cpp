#include "views/shelf_view.h"

#include "platform/display_list.h"
#include "views/shelf_cell_painter.h"
#include "views/shelf_controller.h"
#include "views/shelf_style.h"
#include "views/shelf_text.h"

namespace vistrel {

namespace {

constexpr std::string_view pillWord = "Layouts";

ShelfLayout::Cell shifted(ShelfLayout::Cell cell, Point origin) {
    cell.rect = cell.rect.offsetBy(-origin.x, -origin.y);
    cell.screen = cell.screen.offsetBy(-origin.x, -origin.y);
    return cell;
}

// A hairline along the inside of the glass's rounded edge.
void drawRim(Canvas& canvas, Rect bounds, double radius) {
    const double half = ShelfStyle::rimWidth / 2;
    canvas.stroke(Path::roundedRect(bounds.insetBy(half, half), radius - half), ShelfStyle::rim,
                  {ShelfStyle::rimWidth, LineCap::butt, LineJoin::miter});
}

}  // namespace

void ShelfView::configure(const ShelfLayout& layout, const ShelfState& state, Point origin) {
    layout_ = layout;
    state_ = state;
    origin_ = origin;
    setNeedsDisplay();
}

void ShelfView::attach(AgentWindow* window) {
    window_ = window;
    setNeedsDisplay();
}

void ShelfView::setNeedsDisplay() {
    if (window_ == nullptr) return;
    RecordingCanvas canvas(true);
    draw(canvas);
    window_->setContent(canvas.finish());
}

void ShelfView::draw(Canvas& canvas) const {
    if (state_.folded) {
        drawPill(canvas);
        return;
    }
    const Rect bounds = layout_.frame.offsetBy(-origin_.x, -origin_.y);
    drawRim(canvas, bounds, ShelfController::cornerRadius);
    const ShelfCellPainter painter(canvas, state_);
    for (const auto& cell : layout_.cells)
        painter.paint(shifted(cell, origin_));
    drawDivider(canvas);
}

void ShelfView::drawDivider(Canvas& canvas) const {
    if (!layout_.divider) return;
    const double x = *layout_.divider - origin_.x;
    const double top = layout_.frame.minY() + ShelfLayout::padding - origin_.y;
    canvas.stroke(Path()
                      .moveTo({x, top + ShelfStyle::dividerInset})
                      .lineTo({x, top + ShelfLayout::screenSize.height - ShelfStyle::dividerInset}),
                  ShelfStyle::divider, {ShelfStyle::dividerWidth, LineCap::round, LineJoin::round});
}

// The folded shelf: a capsule of glass with the feature's name.
void ShelfView::drawPill(Canvas& canvas) const {
    const Rect pill = layout_.pill.offsetBy(-origin_.x, -origin_.y);
    drawRim(canvas, pill, pill.height / 2);
    const TextRun run{std::string(pillWord), ShelfStyle::pillFont(), ShelfStyle::pillText};
    ShelfText::drawCentred(canvas, run, pill.midX(), ShelfText::centredBaseline(run, pill.midY()));
}

}  // namespace vistrel
