#pragma once

#include "ui/kit/dfkit_control.h"
#include "ui/kit/dfkit_text.h"

namespace vistrel {

// A capsule with a centred title and a 1-point border: the neutral variant on the surface,
// the primary one in the accent.
class DFKitButton : public DFKitControl {
  public:
    enum class Variant { standard = 0, primary = 1 };
    static constexpr double titlePadding = 14;
    static constexpr double fontSize = 12;

    DFKitButton(std::string title, Variant variant, double height, std::function<void()> action,
                DFKitMargins margins = {});

    const std::string& title() const { return title_.string; }
    Variant variant() const { return variant_; }

    Size sizeThatFits(double) const override;
    double leadingInset() const override { return margins_.leading; }
    double bottomMargin() const override { return margins_.bottom; }
    void draw(Canvas& canvas, Appearance appearance) const override;

  private:
    DFKitText title_;
    Variant variant_;
    double height_;
    DFKitMargins margins_;
};

}  // namespace vistrel
