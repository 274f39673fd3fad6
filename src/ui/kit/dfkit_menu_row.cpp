#include "ui/kit/dfkit_menu_row.h"

#include "ui/kit/dfkit_palette.h"

namespace vistrel {

namespace {
constexpr double fontSize = 13;
constexpr double shortcutFontSize = 12;
constexpr double cornerRadius = 6;
}  // namespace

DFKitMenuRow::DFKitMenuRow(DFKitGlyph glyph, std::string title, std::optional<std::string> shortcut,
                           std::function<void()> action)
    : DFKitControl(title, std::move(action)),
      glyph_(glyph),
      title_{std::move(title), Font::system(fontSize), DFKit::ink} {
    if (shortcut) shortcut_.emplace(*shortcut, Font::system(shortcutFontSize), DFKit::inkMuted);
}

std::optional<std::string> DFKitMenuRow::shortcut() const {
    if (!shortcut_) return std::nullopt;
    return shortcut_->string();
}

void DFKitMenuRow::draw(Canvas& canvas, Appearance appearance) const {
    if (hovered() || pressed())
        canvas.fill(Path::roundedRect(bounds(), cornerRadius), DFKit::chip.resolved(appearance));
    const double midY = bounds().midY();
    drawGlyph(canvas, glyph_, {glyphX + glyphSize / 2, midY}, glyphSize,
              DFKit::ink.resolved(appearance));
    const double shortcutWidth = shortcut_ ? shortcut_->width() + shortcutInset : 0;
    title_.fitted(bounds().width - titleX - shortcutInset - shortcutWidth)
        .draw(canvas, appearance, titleX, midY);
    if (shortcut_) {
        shortcut_->draw(canvas, appearance, bounds().width - shortcutInset - shortcut_->width(),
                        midY);
    }
}

}  // namespace vistrel
