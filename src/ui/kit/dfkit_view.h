#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "platform/appearance.h"
#include "platform/canvas.h"
#include "platform/key_panel.h"

namespace vistrel {

class DFKitView;

// Where a view sits in a stack of rows: how far in from the leading edge, and how much
// room it keeps below.
struct DFKitMargins {
    double leading = 0;
    double bottom = 0;
};

// Where a view's changes go: the window that shows it redraws, and tells assistive
// applications about a changed value.
class DFKitHost {
  public:
    virtual ~DFKitHost() = default;
    virtual void setNeedsDisplay() = 0;
    virtual void valueChanged(const DFKitView& view) = 0;
};

// A view of the kit: a rectangle of a flipped space (origin at the top-left, y down) that
// draws into a canvas in the palette of an appearance, takes the mouse and describes itself
// to assistive applications. Points handed to a view are in its own space.
class DFKitView {
  public:
    virtual ~DFKitView() = default;
    DFKitView() = default;
    DFKitView(const DFKitView&) = delete;
    DFKitView& operator=(const DFKitView&) = delete;

    Rect frame() const { return frame_; }
    Rect bounds() const { return {0, 0, frame_.width, frame_.height}; }
    // Places the view in its parent's space and lays out its contents for the new size.
    void setFrame(Rect frame);
    // The size the view takes when its parent offers `width`.
    virtual Size sizeThatFits(double width) const = 0;
    // How far from the parent's content edge the view sits.
    virtual double leadingInset() const { return 0; }
    // How much room the view keeps below itself.
    virtual double bottomMargin() const { return 0; }

    virtual void draw(Canvas& canvas, Appearance appearance) const = 0;
    // Draws over the subviews, inside the same clip: a scroller, a fade.
    virtual void drawAbove(Canvas&, Appearance) const {}
    // Draws the view and its subviews at the view's frame.
    void display(Canvas& canvas, Appearance appearance) const;

    virtual std::vector<DFKitView*> subviews() const { return {}; }
    DFKitView* superview() const { return superview_; }
    // The frame in the space of the outermost view.
    Rect frameInRoot() const;

    // Interactive views take the mouse (and the first click into an inactive panel).
    virtual bool acceptsFirstMouse() const { return false; }
    // Views with a hover look (a tracking area for entered and exited).
    virtual bool tracksHover() const { return false; }
    virtual void mouseDown(Point) {}
    virtual void mouseUp(Point) {}
    virtual void setHovered(bool) {}
    // The deepest view at a point of this view's space that takes the mouse.
    DFKitView* hitTest(Point point);

    // The view as an accessibility element, its frame in the view's own space; none for a
    // view that is only decoration.
    virtual std::optional<AccessibilityNode> accessibilityNode() { return std::nullopt; }
    // Every element of this view and its subviews, frames in the outermost view's space.
    void collectAccessibility(std::vector<AccessibilityNode>& nodes,
                              std::vector<const DFKitView*>& owners);

    void setHost(DFKitHost* host);

  protected:
    // Lays the view's contents out for its current bounds.
    virtual void layout() {}
    void adopt(DFKitView& child) { child.superview_ = this; }
    void setNeedsDisplay() const;
    void announceValueChanged() const;

  private:
    Rect frame_;
    DFKitView* superview_ = nullptr;
    DFKitHost* host_ = nullptr;
};

using DFKitViews = std::vector<std::unique_ptr<DFKitView>>;

}  // namespace vistrel
