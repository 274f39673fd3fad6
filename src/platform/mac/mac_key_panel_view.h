#pragma once

#import <AppKit/AppKit.h>

#include "platform/key_panel.h"
#include "platform/mac/display_list_view.h"

// A key panel's content: the display list, the mouse (in the list's flipped space) and the
// accessibility elements of the drawn views.
@interface VistrelKeyPanelView : VistrelDisplayListView

@property(nonatomic) vistrel::KeyPanelEvents events;

// Replaces the accessibility children with one element per node.
- (void)setNodes:(std::vector<vistrel::AccessibilityNode>)nodes;
// Posts the value-changed notification for the node's element.
- (void)announceValueChangedOfNode:(std::size_t)index;

@end

// A borderless panel that can become key; Escape and losing the keyboard are reported.
@interface VistrelKeyPanel : NSPanel

@property(nonatomic, strong) VistrelKeyPanelView* panelView;

@end
