#include "views/badge_view.h"

#include <string>

#include "platform/display_list.h"
#include "platform/platform.h"
#include "views/layouts_ui.h"

namespace vistrel {

namespace {

// The disc sits inside the bounds with room for its ring.
constexpr double discInset = 2;
constexpr double ringWidth = 2;
constexpr double numberSize = 15;

}  // namespace

void BadgeView::configure(int number) {
    number_ = number;
    setNeedsDisplay();
}

void BadgeView::attach(AgentWindow* window) {
    window_ = window;
    setNeedsDisplay();
}

void BadgeView::setNeedsDisplay() {
    // A window not placed yet has no room to draw in: its owner places it, then configures.
    if (window_ == nullptr || window_->frame().isEmpty()) return;
    RecordingCanvas canvas(true);
    draw(canvas, window_->frame().size());
    window_->setContent(canvas.finish());
}

void BadgeView::draw(Canvas& canvas, Size bounds) const {
    const Path disc = Path::oval(Rect::of({}, bounds).insetBy(discInset, discInset));
    canvas.fill(disc, LayoutsUI::accent);
    canvas.stroke(disc, Color::white(), StrokeStyle{ringWidth});

    // Centred by its measured box, so that two digits sit as centred as one.
    const TextRun run{std::to_string(number_), Font::system(numberSize, FontWeight::bold),
                      Color::white()};
    const TextMetrics metrics = platform().text.measure(run);
    const Point baseline{(bounds.width - metrics.width) / 2,
                         (bounds.height - metrics.height()) / 2 + metrics.ascent};
    canvas.drawText(run, baseline);
}

}  // namespace vistrel
