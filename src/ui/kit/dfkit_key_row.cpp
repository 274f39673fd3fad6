#include "ui/kit/dfkit_key_row.h"

#include <algorithm>

#include "ui/kit/dfkit_palette.h"

namespace vistrel {

namespace {
constexpr double keysFontSize = 12;
constexpr double titleFontSize = 13;
constexpr double capHeight = 20;
constexpr double capPadding = 4;
constexpr double capMinWidth = 28;
constexpr double capRadius = 5;
}  // namespace

DFKitKeyRow::DFKitKeyRow(std::string keys, std::string title, std::unique_ptr<DFKitSwitch> toggle)
    : keys_{std::move(keys), Font::system(keysFontSize, FontWeight::semibold), DFKit::ink},
      title_{std::move(title), Font::system(titleFontSize), DFKit::ink},
      toggle_(std::move(toggle)) {
    adopt(*toggle_);
}

Rect DFKitKeyRow::capRect() const {
    const double width = std::max(capMinWidth, keys_.width() + 2 * capPadding);
    return {capsInset, (bounds().height - capHeight) / 2, width, capHeight};
}

void DFKitKeyRow::layout() {
    toggle_->setFrame(
        {switchOrigin.x, switchOrigin.y, DFKitSwitch::size.width, DFKitSwitch::size.height});
}

void DFKitKeyRow::draw(Canvas& canvas, Appearance appearance) const {
    const Rect cap = capRect();
    canvas.fill(Path::roundedRect(cap, capRadius), DFKit::chip.resolved(appearance));
    keys_.draw(canvas, appearance, cap.midX() - keys_.width() / 2, cap.midY());
    title_.fitted(switchOrigin.x - titleGap - titleX)
        .draw(canvas, appearance, titleX, bounds().midY());
}

void DFKitKeyRow::mouseUp(Point point) {
    if (bounds().contains(point)) toggle_->toggle();
}

}  // namespace vistrel
