#include "ui/kit/dfkit_button.h"

#include "ui/kit/dfkit_palette.h"

namespace vistrel {

namespace {
constexpr double borderWidth = 1;
// How much darker a pressed primary button gets.
constexpr double pressedDarkening = 0.15;
}  // namespace

DFKitButton::DFKitButton(std::string title, Variant variant, double height,
                         std::function<void()> action, DFKitMargins margins)
    : DFKitControl(title, std::move(action)),
      title_{std::move(title), Font::system(fontSize, FontWeight::medium),
             variant == Variant::primary ? DFKit::onIndigo : DFKit::ink},
      variant_(variant),
      height_(height),
      margins_(margins) {}

Size DFKitButton::sizeThatFits(double) const {
    return {title_.measure().width + 2 * titlePadding, height_};
}

void DFKitButton::draw(Canvas& canvas, Appearance appearance) const {
    const Rect capsule = bounds().insetBy(borderWidth / 2, borderWidth / 2);
    const Path outline = Path::roundedRect(capsule, capsule.height / 2);
    if (variant_ == Variant::primary) {
        const Color fill = DFKit::indigo.resolved(appearance);
        canvas.fill(outline, pressed() ? fill.blended(pressedDarkening, Color::black()) : fill);
    } else {
        canvas.fill(outline, DFKit::surface.resolved(appearance));
        if (pressed()) canvas.fill(outline, DFKit::chip.resolved(appearance));
    }
    canvas.stroke(outline, DFKit::lineStrong.resolved(appearance), {borderWidth});
    title_.draw(canvas, appearance, bounds().midX() - title_.measure().width / 2, bounds().midY());
}

}  // namespace vistrel
