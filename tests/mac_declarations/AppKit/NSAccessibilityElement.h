#pragma once

#include <AppKit/NSView.h>
#include <Foundation/NSArray.h>
#include <Foundation/NSGeometry.h>
#include <Foundation/NSString.h>

typedef NSString* NSAccessibilityRole;
typedef NSString* NSAccessibilityNotificationName;

VISTREL_EXTERN_C_BEGIN
extern NSAccessibilityNotificationName const NSAccessibilityValueChangedNotification;
void NSAccessibilityPostNotification(id element, NSAccessibilityNotificationName notification);
VISTREL_EXTERN_C_END

@interface NSAccessibilityElement : NSObject
@property(nullable, copy) NSAccessibilityRole accessibilityRole VISTREL_MACOS(10.10);
@property(nullable, copy) NSString* accessibilityLabel VISTREL_MACOS(10.10);
@property(nullable, copy) NSString* accessibilityHelp VISTREL_MACOS(10.10);
@property(nullable, weak) id accessibilityParent VISTREL_MACOS(10.10);
@property NSRect accessibilityFrameInParentSpace VISTREL_MACOS(10.10);
- (nullable id)accessibilityValue VISTREL_MACOS(10.10);
- (BOOL)accessibilityPerformPress VISTREL_MACOS(10.10);
@end

@interface NSView (VistrelAccessibility)
- (void)setAccessibilityChildren:(nullable NSArray*)accessibilityChildren VISTREL_MACOS(10.10);
- (void)setAccessibilityLabel:(nullable NSString*)accessibilityLabel VISTREL_MACOS(10.10);
@end
