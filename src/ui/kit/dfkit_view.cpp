#include "ui/kit/dfkit_view.h"

namespace vistrel {

void DFKitView::setFrame(Rect frame) {
    frame_ = frame;
    layout();
}

void DFKitView::display(Canvas& canvas, Appearance appearance) const {
    canvas.save();
    canvas.translate(frame_.x, frame_.y);
    draw(canvas, appearance);
    for (const DFKitView* child : subviews())
        child->display(canvas, appearance);
    drawAbove(canvas, appearance);
    canvas.restore();
}

Rect DFKitView::frameInRoot() const {
    Rect frame = frame_;
    for (const DFKitView* parent = superview_; parent; parent = parent->superview_) {
        frame.x += parent->frame_.x;
        frame.y += parent->frame_.y;
    }
    return frame;
}

DFKitView* DFKitView::hitTest(Point point) {
    if (!bounds().contains(point)) return nullptr;
    for (DFKitView* child : subviews()) {
        const Rect f = child->frame();
        if (DFKitView* hit = child->hitTest({point.x - f.x, point.y - f.y})) return hit;
    }
    return acceptsFirstMouse() ? this : nullptr;
}

void DFKitView::collectAccessibility(std::vector<AccessibilityNode>& nodes,
                                     std::vector<const DFKitView*>& owners) {
    if (std::optional<AccessibilityNode> node = accessibilityNode()) {
        const Rect root = frameInRoot();
        node->frame.x += root.x;
        node->frame.y += root.y;
        nodes.push_back(std::move(*node));
        owners.push_back(this);
    }
    for (DFKitView* child : subviews())
        child->collectAccessibility(nodes, owners);
}

void DFKitView::setHost(DFKitHost* host) {
    host_ = host;
    for (DFKitView* child : subviews())
        child->setHost(host);
}

void DFKitView::setNeedsDisplay() const {
    if (host_) host_->setNeedsDisplay();
}

void DFKitView::announceValueChanged() const {
    if (host_) host_->valueChanged(*this);
}

}  // namespace vistrel
