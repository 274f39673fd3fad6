#pragma once

#include "ui/kit/dfkit_view.h"

namespace vistrel {

// A 1-point hairline across the row, with room above and below.
class DFKitSeparator : public DFKitView {
  public:
    static constexpr double height = 9;

    Size sizeThatFits(double width) const override { return {width, height}; }
    void draw(Canvas& canvas, Appearance appearance) const override;
};

}  // namespace vistrel
