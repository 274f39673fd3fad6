#include "platform/mac/mac_key_panel.h"

#import <AppKit/AppKit.h>

#include "platform/mac/mac_key_panel_view.h"
#include "platform/window_host.h"

namespace vistrel {

namespace {
// NSStatusWindowLevel: with the status bar, above ordinary windows.
constexpr NSWindowLevel statusLevel = 25;
}  // namespace

MacKeyPanel::MacKeyPanel() {
    // Non-activating: the panel becomes key while the application in front keeps its focus.
    panel_ = [[VistrelKeyPanel alloc]
        initWithContentRect:NSZeroRect
                  styleMask:NSWindowStyleMaskBorderless | NSWindowStyleMaskNonactivatingPanel
                    backing:NSBackingStoreBuffered
                      defer:YES];
    panel_.releasedWhenClosed = NO;
    // The controller closes the panel itself; AppKit hiding it behind the controller's back
    // would leave the status item highlighted.
    panel_.hidesOnDeactivate = NO;
    panel_.collectionBehavior = WindowCollectionBehavior::menuBarPanel;
    panel_.opaque = NO;
    panel_.backgroundColor = NSColor.clearColor;
    panel_.hasShadow = YES;
    panel_.level = statusLevel;
    view_ = [[VistrelKeyPanelView alloc] initWithFrame:NSZeroRect];
    panel_.panelView = view_;
    panel_.contentView = view_;
}

// The owner's callbacks go first, so a panel leaving the screen reports to no one.
MacKeyPanel::~MacKeyPanel() {
    view_.events = {};
    [panel_ orderOut:nil];
}

void MacKeyPanel::setEvents(KeyPanelEvents events) {
    view_.events = std::move(events);
}

void MacKeyPanel::setFrame(Rect frame) {
    [panel_ setFrame:NSMakeRect(frame.x, frame.y, frame.width, frame.height) display:YES];
}

Rect MacKeyPanel::frame() const {
    const NSRect f = panel_.frame;
    return {f.origin.x, f.origin.y, f.size.width, f.size.height};
}

void MacKeyPanel::setContent(std::shared_ptr<const DisplayList> content) {
    [view_ setDisplayList:std::move(content)];
}

void MacKeyPanel::showKey() {
    [panel_ makeKeyAndOrderFront:nil];
}

void MacKeyPanel::orderOut() {
    [panel_ orderOut:nil];
}

bool MacKeyPanel::isVisible() const {
    return panel_.visible == YES;
}

void MacKeyPanel::invalidateShadow() {
    [panel_ invalidateShadow];
}

void MacKeyPanel::setAccessibilityNodes(std::vector<AccessibilityNode> nodes) {
    [view_ setNodes:std::move(nodes)];
}

void MacKeyPanel::announceValueChanged(std::size_t node) {
    [view_ announceValueChangedOfNode:node];
}

NSView* MacKeyPanel::contentView() const {
    return view_;
}

std::unique_ptr<KeyPanel> MacKeyPanelHost::makePanel() {
    return std::make_unique<MacKeyPanel>();
}

}  // namespace vistrel
