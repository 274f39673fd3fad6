#include "ui/kit/dfkit_switch.h"

#include "ui/kit/dfkit_palette.h"

namespace vistrel {

namespace {
// The knob's shadow: a faint rim that keeps the white knob apart from a pale track.
constexpr double shadowSpread = 0.5;
constexpr double shadowAlpha = 0.14;
}  // namespace

DFKitSwitch::DFKitSwitch(std::string label, bool isOn, std::function<void(bool)> onChange)
    : label_(std::move(label)), isOn_(isOn), onChange_(std::move(onChange)) {}

void DFKitSwitch::toggle() {
    isOn_ = !isOn_;
    setNeedsDisplay();
    if (onChange_) onChange_(isOn_);
    announceValueChanged();
}

Rect DFKitSwitch::knobRect() const {
    const double x = isOn_ ? bounds().width - knobOnFromRight : knobInset;
    return {x, (bounds().height - knobSize.height) / 2, knobSize.width, knobSize.height};
}

void DFKitSwitch::draw(Canvas& canvas, Appearance appearance) const {
    const Rect track = bounds();
    canvas.fill(Path::roundedRect(track, track.height / 2),
                (isOn_ ? DFKit::indigo : DFKit::track).resolved(appearance));
    const Rect knob = knobRect();
    canvas.fill(Path::roundedRect(knob.insetBy(-shadowSpread, -shadowSpread), knob.height / 2),
                Color::black().withAlpha(shadowAlpha));
    canvas.fill(Path::roundedRect(knob, knob.height / 2), DFKit::knob.resolved(appearance));
}

void DFKitSwitch::mouseUp(Point point) {
    if (bounds().contains(point)) toggle();
}

std::optional<AccessibilityNode> DFKitSwitch::accessibilityNode() {
    return AccessibilityNode{std::string(AccessibilityRole::checkBox),
                             label_,
                             isOn_,
                             bounds(),
                             [this] { toggle(); },
                             {}};
}

}  // namespace vistrel
