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

    // Replaces the rows and sizes the panel to them; answers the rows it had.
    DFKitViews setRows(DFKitViews rows);
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
