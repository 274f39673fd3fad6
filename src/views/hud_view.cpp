#include "views/hud_view.h"

#include <cmath>

#include "platform/display_list.h"
#include "platform/platform.h"
#include "views/layouts_ui.h"

namespace vistrel {

namespace {

constexpr double capsuleHeight = 34;
// The text's distance from the capsule's ends; with a miniature the text starts after it.
constexpr double textInset = 15;
constexpr double textInsetAfterMiniature = 50;
constexpr double fontSize = 13;

// The border is stroked half a point inside the bounds, so its whole width shows.
constexpr double borderInset = 0.5;
constexpr double borderWidth = 1;
constexpr Color capsuleFill{0.08, 0.08, 0.08, 0.9};
constexpr Color capsuleBorder = Color::white().withAlpha(0.16);

constexpr double miniatureX = 15;
constexpr Size miniatureSize{26, 17};
constexpr double miniatureCornerRadius = 3;
constexpr double miniatureInset = 2;
constexpr double windowCornerRadius = 1.5;
constexpr Color miniatureFill = Color::white().withAlpha(0.2);

TextRun runOf(const std::string& message) {
    return {message, HUDView::font(), Color::white()};
}

double textX(bool withUnit) {
    return withUnit ? textInsetAfterMiniature : textInset;
}

// A small screen with the unit rectangle as a window on it, clipped to the screen.
void drawMiniature(Canvas& canvas, const UnitRect& unit, double boundsHeight) {
    const Rect screen =
        Rect::of({miniatureX, (boundsHeight - miniatureSize.height) / 2}, miniatureSize);
    canvas.fill(Path::roundedRect(screen, miniatureCornerRadius), miniatureFill);

    const Rect area = screen.insetBy(miniatureInset, miniatureInset);
    const Rect window{area.x + unit.x * area.width, area.y + unit.y * area.height,
                      unit.w * area.width, unit.h * area.height};
    canvas.save();
    canvas.clip(Path::rect(area));
    canvas.fill(Path::roundedRect(window, windowCornerRadius), LayoutsUI::accent);
    canvas.restore();
}

}  // namespace

Font HUDView::font() {
    return Font::system(fontSize, FontWeight::semibold);
}

void HUDView::configure(std::string message, std::optional<UnitRect> unit) {
    message_ = std::move(message);
    unit_ = unit;
    setNeedsDisplay();
}

Size HUDView::measure(const std::string& message, bool withUnit) {
    const double textWidth = platform().text.measure(runOf(message)).width;
    return {std::ceil(textX(withUnit) + textWidth + textInset), capsuleHeight};
}

void HUDView::attach(AgentWindow* window) {
    window_ = window;
    setNeedsDisplay();
}

void HUDView::setNeedsDisplay() {
    // A window not placed yet has no room to draw in: its owner places it, then configures.
    if (window_ == nullptr || window_->frame().isEmpty()) return;
    RecordingCanvas canvas(true);
    draw(canvas, window_->frame().size());
    window_->setContent(canvas.finish());
}

void HUDView::draw(Canvas& canvas, Size bounds) const {
    const Rect capsule = Rect::of({}, bounds).insetBy(borderInset, borderInset);
    const Path outline = Path::roundedRect(capsule, capsule.height / 2);
    canvas.fill(outline, capsuleFill);
    canvas.stroke(outline, capsuleBorder, StrokeStyle{borderWidth});

    if (unit_) drawMiniature(canvas, *unit_, bounds.height);

    const TextRun run = runOf(message_);
    const TextMetrics metrics = platform().text.measure(run);
    const double baseline = (bounds.height - metrics.height()) / 2 + metrics.ascent;
    canvas.drawText(run, {textX(unit_.has_value()), baseline});
}

}  // namespace vistrel
