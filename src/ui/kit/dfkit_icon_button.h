#pragma once

#include "ui/kit/dfkit_control.h"
#include "ui/kit/dfkit_glyph.h"

namespace vistrel {

// A square button showing a glyph, filled with the chip colour while hovered or pressed;
// its label is what assistive applications read.
class DFKitIconButton : public DFKitControl {
  public:
    static constexpr double side = 24;
    static constexpr double glyphSize = 15;

    DFKitIconButton(DFKitGlyph glyph, std::string label, std::function<void()> action);

    DFKitGlyph glyph() const { return glyph_; }
    const std::string& label() const { return label_; }

    Size sizeThatFits(double) const override { return {side, side}; }
    void draw(Canvas& canvas, Appearance appearance) const override;

  private:
    DFKitGlyph glyph_;
    std::string label_;
};

}  // namespace vistrel
