#include "ui/kit/dfkit_panel_header.h"

#include "ui/kit/dfkit_palette.h"

namespace vistrel {

namespace {
constexpr double labelFontSize = 11;
// With a label, the name moves up to make room for it.
constexpr double nameRaise = 7;
constexpr double labelDrop = 9;
// Where the middle of the mark's shapes lies, as a fraction of its image.
constexpr double markVisibleCentre = 0.6;
}  // namespace

DFKitPanelHeader::DFKitPanelHeader(DFKitApp app, std::optional<std::string> label,
                                   std::unique_ptr<DFKitView> accessory)
    : app_(std::move(app)),
      name_{app_.name, Font::named(FontName::instrumentSans, nameFontSize), DFKit::ink},
      accessory_(std::move(accessory)) {
    if (label) label_ = DFKitText{*label, Font::system(labelFontSize), DFKit::inkMuted};
    if (accessory_) adopt(*accessory_);
}

void DFKitPanelHeader::layout() {
    if (!accessory_) return;
    const Size size = accessory_->sizeThatFits(bounds().width);
    accessory_->setFrame({bounds().width - accessoryInset - size.width,
                          (bounds().height - size.height) / 2, size.width, size.height});
}

void DFKitPanelHeader::draw(Canvas& canvas, Appearance appearance) const {
    const double midY = bounds().midY();
    canvas.save();
    const double offset = markSize * markVisibleCentre;
    canvas.translate(markCentreX - offset, midY - offset);
    markImage(app_.mark, markSize, DFKit::ink.resolved(appearance))->replay(canvas);
    canvas.restore();
    if (!label_) {
        name_.draw(canvas, appearance, nameX, midY);
        return;
    }
    name_.draw(canvas, appearance, nameX, midY - nameRaise);
    label_->draw(canvas, appearance, nameX, midY + labelDrop);
}

std::vector<DFKitView*> DFKitPanelHeader::subviews() const {
    if (!accessory_) return {};
    return {accessory_.get()};
}

std::optional<AccessibilityNode> DFKitPanelHeader::accessibilityNode() {
    return AccessibilityNode{
        std::string(AccessibilityRole::staticText), app_.name, std::nullopt, bounds(), {},
        label_ ? label_->string : std::string()};
}

}  // namespace vistrel
