#pragma once

#include <AppKit/NSView.h>
#include <Foundation/NSDictionary.h>
#include <Foundation/NSGeometry.h>

VISTREL_OPTIONS(NSUInteger, NSTrackingAreaOptions){
    NSTrackingMouseEnteredAndExited = 0x01,
    NSTrackingMouseMoved = 0x02,
    NSTrackingActiveAlways = 0x80,
    NSTrackingInVisibleRect = 0x200,
};

@interface NSTrackingArea : NSObject <NSCopying>
- (instancetype)initWithRect:(NSRect)rect
                     options:(NSTrackingAreaOptions)options
                       owner:(nullable id)owner
                    userInfo:(nullable NSDictionary*)userInfo VISTREL_MACOS(10.5);
@end

@interface NSView (VistrelTracking)
- (void)updateTrackingAreas VISTREL_MACOS(10.5);
- (void)addTrackingArea:(NSTrackingArea*)trackingArea VISTREL_MACOS(10.5);
- (BOOL)acceptsFirstMouse:(nullable NSEvent*)event;
- (NSPoint)convertPoint:(NSPoint)point fromView:(nullable NSView*)view;
- (NSRect)convertRect:(NSRect)rect toView:(nullable NSView*)view;
@property(nullable, readonly, assign) NSWindow* window;
@property(nullable, readonly, assign) NSView* superview;
@end
