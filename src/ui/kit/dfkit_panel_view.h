#pragma once

#include "ui/kit/dfkit_view.h"

namespace vistrel {

// The panel's content: the surface with its hairline border, and the rows stacked top to
// bottom inside a margin.
class DFKitPanelView : public DFKitView {
  public:
    static constexpr double rowWidth = 284;
    static constexpr double margin = 8;
    static constexpr double cornerRadius = 12;

    // The least a scrolling column keeps of its window when the panel must shrink.
    static constexpr double leastScrollHeight = 56;

    // Replaces the rows and sizes the panel to them; answers the rows it had.
    DFKitViews setRows(DFKitViews rows);
    // Sizes the panel to be at most `height` tall: its scrolling columns give up what it
    // must lose (each keeps at least leastScrollHeight), every other row keeps its size.
    void fitHeight(double height);
    // Scrolls the scrolling column under a point by `dy`; answers whether it moved.
    bool scroll(Point point, double dy);
    const DFKitViews& rows() const { return rows_; }

    Size sizeThatFits(double width) const override;
    void draw(Canvas& canvas, Appearance appearance) const override;
    std::vector<DFKitView*> subviews() const override;

  protected:
    void layout() override;

  private:
    DFKitViews rows_;
};

}  // namespace vistrel
