#include "ui/kit/dfkit_section_label.h"

#include <cctype>

namespace vistrel {

namespace {
// The label sits a little below the middle of its row, closer to the rows it names.
constexpr double textMidY = 15;

std::string upperCased(std::string text) {
    for (char& c : text)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return text;
}
}  // namespace

DFKitSectionLabel::DFKitSectionLabel(std::string text)
    : text_(std::move(text)),
      label_{upperCased(text_), Font::named(FontName::geistMono, fontSize), DFKit::inkMuted, kern} {
}

void DFKitSectionLabel::draw(Canvas& canvas, Appearance appearance) const {
    label_.draw(canvas, appearance, textInset, textMidY);
}

std::optional<AccessibilityNode> DFKitSectionLabel::accessibilityNode() {
    return AccessibilityNode{
        std::string(AccessibilityRole::staticText), text_, std::nullopt, bounds(), {}, {}};
}

}  // namespace vistrel
