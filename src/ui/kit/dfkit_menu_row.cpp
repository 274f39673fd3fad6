#include "ui/kit/dfkit_menu_row.h"

#include <string>
#include <vector>

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

double DFKitMenuRow::titleWidth(double rowWidth) const {
    const double shortcutWidth = shortcut_ ? shortcut_->width() + shortcutInset : 0;
    return rowWidth - titleX - shortcutInset - shortcutWidth;
}

std::vector<std::string> DFKitMenuRow::titleLines(double rowWidth) const {
    std::vector<std::string> lines;
    if (wraps_) lines = title_.wrapped(titleWidth(rowWidth));
    if (lines.size() <= 1) return {title_.fitted(titleWidth(rowWidth)).string};
    return lines;
}

Size DFKitMenuRow::sizeThatFits(double) const {
    const auto lines = static_cast<double>(titleLines(size.width).size());
    if (lines <= 1) return size;
    return {size.width, lines * lineHeight + 2 * wrappedInset};
}

void DFKitMenuRow::draw(Canvas& canvas, Appearance appearance) const {
    if (hovered() || pressed())
        canvas.fill(Path::roundedRect(bounds(), cornerRadius), DFKit::chip.resolved(appearance));
    const std::vector<std::string> lines = titleLines(bounds().width);
    // The glyph stands beside the first line, as the shortcut does.
    const double firstMidY =
        lines.size() <= 1 ? bounds().midY() : bounds().minY() + wrappedInset + lineHeight / 2;
    drawGlyph(canvas, glyph_, {glyphX + glyphSize / 2, firstMidY}, glyphSize,
              DFKit::ink.resolved(appearance));
    double midY = firstMidY;
    for (const std::string& line : lines) {
        DFKitText{line, title_.font, title_.color}.draw(canvas, appearance, titleX, midY);
        midY += lineHeight;
    }
    if (shortcut_) {
        shortcut_->draw(canvas, appearance, bounds().width - shortcutInset - shortcut_->width(),
                        firstMidY);
    }
}

}  // namespace vistrel
