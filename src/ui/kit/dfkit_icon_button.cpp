#include "ui/kit/dfkit_icon_button.h"

#include "ui/kit/dfkit_palette.h"

namespace vistrel {

namespace {
constexpr double cornerRadius = 6;
}  // namespace

DFKitIconButton::DFKitIconButton(DFKitGlyph glyph, std::string label, std::function<void()> action)
    : DFKitControl(label, std::move(action)), glyph_(glyph), label_(std::move(label)) {}

void DFKitIconButton::draw(Canvas& canvas, Appearance appearance) const {
    if (hovered() || pressed())
        canvas.fill(Path::roundedRect(bounds(), cornerRadius), DFKit::chip.resolved(appearance));
    drawGlyph(canvas, glyph_, bounds().mid(), glyphSize, DFKit::ink.resolved(appearance));
}

}  // namespace vistrel
