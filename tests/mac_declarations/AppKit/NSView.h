#pragma once

#include <AppKit/NSAnimationContext.h>
#include <AppKit/NSAppearance.h>
#include <AppKit/NSResponder.h>
#include <Foundation/NSGeometry.h>

VISTREL_OPTIONS(NSUInteger, NSAutoresizingMaskOptions){
    NSViewWidthSizable = 2,
    NSViewHeightSizable = 16,
};

@interface NSView : NSResponder <NSAnimatablePropertyContainer>
- (instancetype)initWithFrame:(NSRect)frameRect;
@property NSRect frame;
@property NSRect bounds;
@property(readonly, getter=isFlipped) BOOL flipped;
@property(readonly, getter=isOpaque) BOOL opaque;
@property BOOL needsDisplay;
@property BOOL wantsLayer;
@property NSAutoresizingMaskOptions autoresizingMask;
@property(nullable, strong) NSAppearance* appearance VISTREL_MACOS(10.9);
- (nullable NSView*)hitTest:(NSPoint)point;
- (void)drawRect:(NSRect)dirtyRect;
- (void)addSubview:(NSView*)view;
- (void)removeFromSuperview;
@property(getter=isHidden) BOOL hidden;
@property(nullable, copy) NSString* toolTip;
@end
