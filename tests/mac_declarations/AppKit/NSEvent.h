#pragma once

#include <Foundation/NSGeometry.h>
#include <Foundation/NSObject.h>
#include <Foundation/NSString.h>

VISTREL_OPTIONS(unsigned long long, NSEventMask){
    NSEventMaskLeftMouseDown = 1ULL << 1,
    NSEventMaskRightMouseDown = 1ULL << 3,
    NSEventMaskKeyDown = 1ULL << 10,
};

VISTREL_OPTIONS(NSUInteger, NSEventModifierFlags){
    NSEventModifierFlagDeviceIndependentFlagsMask = 0xffff0000UL,
};

@interface NSEvent : NSObject <NSCopying>
@property(readonly) NSPoint locationInWindow;
@property(readonly) NSEventModifierFlags modifierFlags;
// A scroll-wheel event's vertical delta: in points when hasPreciseScrollingDeltas, else in
// lines.
@property(readonly) CGFloat scrollingDeltaY VISTREL_MACOS(10.7);
@property(readonly) BOOL hasPreciseScrollingDeltas VISTREL_MACOS(10.7);
// A key event's virtual key code (kVK_ values, independent of the keyboard layout).
@property(readonly) unsigned short keyCode;
// Nil for events other than key events.
@property(nullable, readonly, copy) NSString* charactersIgnoringModifiers;
// Answers an opaque monitor object, or nil when the monitor could not be installed.
+ (nullable id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask
                                             handler:(void (^)(NSEvent* event))block
    VISTREL_MACOS(10.6);
+ (nullable id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask
                                            handler:(NSEvent* _Nullable (^)(NSEvent* event))block
    VISTREL_MACOS(10.6);
+ (void)removeMonitor:(id)eventMonitor VISTREL_MACOS(10.6);
@end
