#include "ui/kit/dfkit_row.h"

#include <algorithm>

#include "ui/kit/dfkit_palette.h"

namespace vistrel {

namespace {
constexpr double titleFontSize = 13;
constexpr double detailFontSize = 11.5;
constexpr double titleTop = 2;
constexpr double titleHeight = 17;
constexpr double detailLineHeight = 15;
constexpr double trailingInset = 8;
constexpr double bottomInset = 6;
constexpr double discTop = 2;
constexpr double discBorder = 1;
}  // namespace

DFKitRow::DFKitRow(DFKitGlyph glyph, bool on, std::string title, std::string detail,
                   std::optional<DFKitApp> app)
    : glyph_(glyph),
      on_(on),
      title_{std::move(title), Font::system(titleFontSize, FontWeight::semibold), DFKit::ink},
      detail_{std::move(detail), Font::system(detailFontSize), DFKit::inkMuted},
      app_(std::move(app)) {}

DFKitRow::Layout DFKitRow::layoutFor(double width) const {
    Layout layout;
    layout.disc = {discX, discTop, discSize, discSize};
    const double textWidth = std::max(0.0, width - textX - trailingInset);
    // A long title (a problem named in plain words) wraps like the detail under it.
    layout.titleLines = title_.wrapped(textWidth);
    if (layout.titleLines.empty()) layout.titleLines.push_back(title_.string);
    layout.title = {textX, titleTop, textWidth,
                    titleHeight * static_cast<double>(layout.titleLines.size())};
    layout.lines = detail_.wrapped(textWidth);
    layout.detail = {textX, layout.title.maxY(), textWidth,
                     detailLineHeight * static_cast<double>(layout.lines.size())};
    return layout;
}

Size DFKitRow::sizeThatFits(double width) const {
    const Layout layout = layoutFor(width);
    return {width, std::max(minHeight, layout.detail.maxY() + bottomInset)};
}

void DFKitRow::layout() {
    Layout layout = layoutFor(bounds().width);
    discRect_ = layout.disc;
    titleRect_ = layout.title;
    detailRect_ = layout.detail;
    titleLines_ = std::move(layout.titleLines);
    detailLines_ = std::move(layout.lines);
}

void DFKitRow::draw(Canvas& canvas, Appearance appearance) const {
    const Rect disc = discRect_.insetBy(discBorder / 2, discBorder / 2);
    canvas.fill(Path::oval(disc), (on_ ? DFKit::indigo : DFKit::chip).resolved(appearance));
    canvas.stroke(Path::oval(disc), (on_ ? DFKit::indigo : DFKit::lineStrong).resolved(appearance),
                  {discBorder});
    drawGlyph(canvas, glyph_, discRect_.mid(), glyphSize,
              (on_ ? DFKit::onIndigo : DFKit::ink).resolved(appearance));
    drawLines(canvas, appearance, title_, titleLines_, titleRect_, titleHeight);
    drawLines(canvas, appearance, detail_, detailLines_, detailRect_, detailLineHeight);
}

void DFKitRow::drawLines(Canvas& canvas, Appearance appearance, const DFKitText& style,
                         const std::vector<std::string>& lines, Rect rect, double lineHeight) {
    double midY = rect.y + lineHeight / 2;
    for (const std::string& line : lines) {
        DFKitText{line, style.font, style.color}.draw(canvas, appearance, rect.x, midY);
        midY += lineHeight;
    }
}

std::optional<AccessibilityNode> DFKitRow::accessibilityNode() {
    return AccessibilityNode{std::string(AccessibilityRole::staticText),
                             title_.string,
                             std::nullopt,
                             bounds(),
                             {},
                             detail_.string};
}

}  // namespace vistrel
