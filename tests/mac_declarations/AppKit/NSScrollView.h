#pragma once

#include <AppKit/NSView.h>

VISTREL_ENUM(NSUInteger, NSBorderType){
    NSNoBorder = 0,
    NSLineBorder = 1,
    NSBezelBorder = 2,
    NSGrooveBorder = 3,
};

@interface NSClipView : NSView
@end

@interface NSScrollView : NSView
- (instancetype)initWithFrame:(NSRect)frameRect;
@property BOOL hasVerticalScroller;
@property NSBorderType borderType;
@property(nullable, strong) __kindof NSView* documentView;
@property BOOL drawsBackground;
@property(strong) NSClipView* contentView;
// The size of the clip view, inside the scroll view's border.
@property(readonly) NSSize contentSize;
@end
