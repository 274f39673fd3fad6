#pragma once

#include <AppKit/NSResponder.h>
#include <AppKit/NSView.h>

@interface NSViewController : NSResponder
@property(strong) NSView* view;
@end

VISTREL_MACOS(10.10)
@interface NSSplitViewItem : NSObject
+ (instancetype)splitViewItemWithViewController:(NSViewController*)viewController;
+ (instancetype)sidebarWithViewController:(NSViewController*)viewController VISTREL_MACOS(10.11);
@property(getter=isCollapsed) BOOL collapsed;
@property BOOL canCollapse;
@property CGFloat minimumThickness VISTREL_MACOS(10.11);
@end

VISTREL_MACOS(10.10)
@interface NSSplitViewController : NSViewController
- (void)addSplitViewItem:(NSSplitViewItem*)splitViewItem;
@end
