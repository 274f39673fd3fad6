#pragma once

#include <AppKit/NSAnimationContext.h>
#include <AppKit/NSColor.h>
#include <AppKit/NSResponder.h>
#include <AppKit/NSView.h>
#include <Foundation/NSGeometry.h>

VISTREL_OPTIONS(NSUInteger, NSWindowStyleMask){
    NSWindowStyleMaskBorderless = 0,
    NSWindowStyleMaskTitled = 1 << 0,
    NSWindowStyleMaskClosable = 1 << 1,
    NSWindowStyleMaskMiniaturizable = 1 << 2,
    NSWindowStyleMaskResizable = 1 << 3,
    NSWindowStyleMaskFullSizeContentView = 1 << 15,
    // NSPanel only: the panel can become key without activating its application.
    NSWindowStyleMaskNonactivatingPanel = 1 << 7,
};

VISTREL_ENUM(NSUInteger, NSBackingStoreType){
    NSBackingStoreBuffered = 2,
};

typedef NSInteger NSWindowLevel;
typedef NSUInteger NSWindowCollectionBehavior;

@interface NSWindow : NSResponder <NSAnimatablePropertyContainer>
- (instancetype)initWithContentRect:(NSRect)contentRect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backingStoreType
                              defer:(BOOL)flag;
@property(readonly) NSRect frame;
- (void)setFrame:(NSRect)frameRect display:(BOOL)flag;
@property(getter=isReleasedWhenClosed) BOOL releasedWhenClosed;
@property(getter=isOpaque) BOOL opaque;
@property(null_resettable, copy) NSColor* backgroundColor;
@property BOOL hasShadow;
@property(nullable, strong) __kindof NSView* contentView;
@property NSWindowLevel level;
@property NSWindowCollectionBehavior collectionBehavior;
@property BOOL hidesOnDeactivate;
@property BOOL ignoresMouseEvents;
@property CGFloat alphaValue;
@property(readonly, getter=isVisible) BOOL visible;
@property(readonly, getter=isOnActiveSpace) BOOL onActiveSpace VISTREL_MACOS(10.6);
- (void)orderOut:(nullable id)sender;
- (void)orderFrontRegardless;
@end
