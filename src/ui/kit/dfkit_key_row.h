#pragma once

#include <memory>
#include <string>

#include "ui/kit/dfkit_key_text.h"
#include "ui/kit/dfkit_switch.h"
#include "ui/kit/dfkit_text.h"
#include "ui/kit/dfkit_view.h"

namespace vistrel {

// A shortcut and its switch: key caps at the left, the title, the switch at the right. A
// mouse-up anywhere on the row flips the switch as a click on it does.
class DFKitKeyRow : public DFKitView {
  public:
    static constexpr Size size{284, 30};
    static constexpr Point switchOrigin{240, 4};
    static constexpr double capsInset = 8;
    static constexpr double titleX = 58;
    // Room kept between the title and the switch.
    static constexpr double titleGap = 8;

    DFKitKeyRow(std::string keys, std::string title, std::unique_ptr<DFKitSwitch> toggle);

    const std::string& keys() const { return keys_.string(); }
    const std::string& title() const { return title_.string; }
    DFKitSwitch& toggle() const { return *toggle_; }
    Rect capRect() const;

    Size sizeThatFits(double) const override { return size; }
    void draw(Canvas& canvas, Appearance appearance) const override;
    std::vector<DFKitView*> subviews() const override { return {toggle_.get()}; }
    bool acceptsFirstMouse() const override { return true; }
    void mouseUp(Point point) override;

  protected:
    void layout() override;

  private:
    DFKitKeyText keys_;
    DFKitText title_;
    std::unique_ptr<DFKitSwitch> toggle_;
};

}  // namespace vistrel
