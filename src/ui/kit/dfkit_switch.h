#pragma once

#include <functional>
#include <string>

#include "ui/kit/dfkit_view.h"

namespace vistrel {

// An on/off switch: a capsule track, the accent when on, with a wide knob that sits at the
// left when off and at the right when on. A mouse-up inside flips it.
class DFKitSwitch : public DFKitView {
  public:
    static constexpr Size size{36, 22};
    static constexpr Size knobSize{24, 18};
    static constexpr double knobInset = 2;
    // The knob's left edge when on: the width less this.
    static constexpr double knobOnFromRight = 26;

    DFKitSwitch(std::string label, bool isOn, std::function<void(bool)> onChange);

    bool isOn() const { return isOn_; }
    const std::string& label() const { return label_; }
    // Flips the switch as a click does: redraws, reports the new value and announces it.
    void toggle();
    Rect knobRect() const;

    Size sizeThatFits(double) const override { return size; }
    void draw(Canvas& canvas, Appearance appearance) const override;
    bool acceptsFirstMouse() const override { return true; }
    void mouseUp(Point point) override;
    std::optional<AccessibilityNode> accessibilityNode() override;

  private:
    std::string label_;
    bool isOn_;
    std::function<void(bool)> onChange_;
};

}  // namespace vistrel
