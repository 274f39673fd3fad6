#pragma once

#include <AppKit/NSAppearance.h>
#include <AppKit/NSApplication.h>
#include <AppKit/NSView.h>
#include <Foundation/NSArray.h>

VISTREL_EXTERN_C_BEGIN
VISTREL_MACOS(10.9) extern NSAppearanceName const NSAppearanceNameAqua;
VISTREL_MACOS(10.14) extern NSAppearanceName const NSAppearanceNameDarkAqua;
VISTREL_MACOS(10.14) extern NSAppearanceName const NSAppearanceNameAccessibilityHighContrastAqua;
VISTREL_MACOS(10.14)
extern NSAppearanceName const NSAppearanceNameAccessibilityHighContrastDarkAqua;
VISTREL_EXTERN_C_END

@interface NSAppearance (VistrelMatching)
// Nil when none of the names matches.
- (nullable NSAppearanceName)bestMatchFromAppearancesWithNames:
    (NSArray<NSAppearanceName>*)appearances VISTREL_MACOS(10.14);
@end

@interface NSView (VistrelAppearance)
@property(readonly, strong) NSAppearance* effectiveAppearance VISTREL_MACOS(10.14);
// Called when effectiveAppearance changed; overridden to draw again.
- (void)viewDidChangeEffectiveAppearance VISTREL_MACOS(10.14);
@end

@interface NSApplication (VistrelAppearance)
@property(readonly, strong) NSAppearance* effectiveAppearance VISTREL_MACOS(10.14);
@end
