#include "platform/mac/mac_key_panel_view.h"
#include "platform/mac/mac_strings.h"

// One drawn view as assistive applications see it.
@interface VistrelAccessibilityNode : NSAccessibilityElement
- (instancetype)initWithNode:(vistrel::AccessibilityNode)node parent:(NSView*)parent;
@end

@implementation VistrelAccessibilityNode {
    vistrel::AccessibilityNode _node;
}

- (instancetype)initWithNode:(vistrel::AccessibilityNode)node parent:(NSView*)parent {
    if ((self = [super init])) {
        _node = std::move(node);
        self.accessibilityRole = vistrel::nsString(_node.role);
        self.accessibilityLabel = vistrel::nsString(_node.label);
        if (!_node.help.empty()) self.accessibilityHelp = vistrel::nsString(_node.help);
        self.accessibilityParent = parent;
        self.accessibilityFrameInParentSpace =
            NSMakeRect(_node.frame.x, _node.frame.y, _node.frame.width, _node.frame.height);
    }
    return self;
}

- (id)accessibilityValue {
    if (!_node.value) return nil;
    return [NSNumber numberWithBool:*_node.value ? YES : NO];
}

- (BOOL)accessibilityPerformPress {
    if (!_node.press) return NO;
    _node.press();
    return YES;
}

@end

@implementation VistrelKeyPanelView {
    NSMutableArray* _elements;
    BOOL _tracking;
}

- (NSView*)hitTest:(NSPoint)point {
    const NSPoint local = [self convertPoint:point fromView:self.superview];
    const NSRect b = self.bounds;
    const vistrel::Rect bounds{b.origin.x, b.origin.y, b.size.width, b.size.height};
    return bounds.contains(vistrel::Point{local.x, local.y}) ? self : nil;
}

- (BOOL)acceptsFirstMouse:(NSEvent*)event {
    (void)event;
    return YES;
}

- (void)updateTrackingAreas {
    [super updateTrackingAreas];
    if (!_tracking) {
        // One area over the visible rectangle, kept in step by AppKit.
        [self addTrackingArea:[[NSTrackingArea alloc]
                                  initWithRect:NSZeroRect
                                       options:NSTrackingMouseEnteredAndExited |
                                               NSTrackingMouseMoved | NSTrackingActiveAlways |
                                               NSTrackingInVisibleRect
                                         owner:self
                                      userInfo:nil]];
        _tracking = YES;
    }
}

- (vistrel::Point)pointOf:(NSEvent*)event {
    const NSPoint point = [self convertPoint:event.locationInWindow fromView:nil];
    return {point.x, point.y};
}

- (void)mouseDown:(NSEvent*)event {
    if (self.events.mouseDown) self.events.mouseDown([self pointOf:event]);
}

- (void)mouseUp:(NSEvent*)event {
    if (self.events.mouseUp) self.events.mouseUp([self pointOf:event]);
}

- (void)mouseMoved:(NSEvent*)event {
    if (self.events.mouseMoved) self.events.mouseMoved([self pointOf:event]);
}

- (void)scrollWheel:(NSEvent*)event {
    if (self.events.scrolled)
        self.events.scrolled([self pointOf:event], event.scrollingDeltaY,
                             event.hasPreciseScrollingDeltas);
}

- (void)mouseExited:(NSEvent*)event {
    (void)event;
    if (self.events.mouseMoved) self.events.mouseMoved(std::nullopt);
}

- (void)setNodes:(std::vector<vistrel::AccessibilityNode>)nodes {
    _elements = [NSMutableArray arrayWithCapacity:nodes.size()];
    for (vistrel::AccessibilityNode& node : nodes)
        [_elements addObject:[[VistrelAccessibilityNode alloc] initWithNode:std::move(node)
                                                                     parent:self]];
    [self setAccessibilityChildren:_elements];
}

- (void)announceValueChangedOfNode:(std::size_t)index {
    if (index >= _elements.count) return;
    NSAccessibilityPostNotification(_elements[index], NSAccessibilityValueChangedNotification);
}

@end

@implementation VistrelKeyPanel

- (BOOL)canBecomeKeyWindow {
    return YES;
}

- (void)cancelOperation:(id)sender {
    (void)sender;
    if (self.panelView.events.escape) self.panelView.events.escape();
}

// No view of the panel takes the keyboard, so key-downs come to the panel itself.
- (void)keyDown:(NSEvent*)event {
    const auto& keyDown = self.panelView.events.keyDown;
    if (keyDown &&
        keyDown(event.keyCode, event.modifierFlags & NSEventModifierFlagDeviceIndependentFlagsMask))
        return;
    [super keyDown:event];
}

- (void)resignKeyWindow {
    [super resignKeyWindow];
    if (self.panelView.events.resignedKey) self.panelView.events.resignedKey();
}

@end
