#pragma once

#include <optional>

#include "ui/kit/dfkit_view.h"

namespace vistrel {

// A column of rows seen through a window of limited height: when the rows are taller than
// the window they are clipped to it and scroll under it, by the wheel or the trackpad;
// otherwise it is as tall as they are and never scrolls.
class DFKitScrollView : public DFKitView {
  public:
    // The scroller's knob: its width, its distance from the window's edges, its least height.
    static constexpr double knobWidth = 4;
    static constexpr double knobInset = 2;
    static constexpr double leastKnobHeight = 18;
    // How tall the fade is at an edge where rows are hidden, and its steps of one point each.
    static constexpr double fadeHeight = 12;

    explicit DFKitScrollView(DFKitViews rows);

    // The tallest the window may be; nothing lets every row show.
    void setMaxHeight(std::optional<double> height);
    // The rows' whole height at this width.
    double contentHeight(double width) const;
    // How far the rows are scrolled up, from 0 to contentHeight minus the window's height.
    double offset() const { return offset_; }
    // Scrolls the rows up by `dy` points (down for a negative `dy`), as far as they go;
    // answers whether they moved.
    bool scrollBy(double dy);
    // Scrolls the least that shows one of the rows, or a view inside one, whole and clear of
    // the fades.
    void scrollToShow(const DFKitView& view);
    const DFKitViews& rows() const { return rows_; }

    Size sizeThatFits(double width) const override;
    void draw(Canvas& canvas, Appearance appearance) const override;
    // The scroller's knob over the rows' right edge, while the rows are taller than the
    // window: how much there is and where the window stands in it.
    void drawAbove(Canvas& canvas, Appearance appearance) const override;
    // Whether rows are hidden above the window, and below it: each such edge fades into the
    // panel's surface, so that a row cut by it reads as going on, not as drawn wrong.
    bool hidesAbove() const { return offset_ > 0; }
    bool hidesBelow() const { return offset_ < maxOffset(); }
    // Where the knob stands in the view's space; nothing while every row shows.
    std::optional<Rect> knob() const;
    std::vector<DFKitView*> subviews() const override;

  protected:
    void layout() override;

  private:
    double maxOffset() const;
    void drawFade(Canvas& canvas, Appearance appearance, bool top) const;

    DFKitViews rows_;
    std::optional<double> maxHeight_;
    double offset_ = 0;
};

}  // namespace vistrel
