#pragma once

#include <AppKit/NSImage.h>
#include <AppKit/NSView.h>

VISTREL_ENUM(NSInteger, NSVisualEffectMaterial){
    NSVisualEffectMaterialHUDWindow VISTREL_MACOS(10.14) = 13,
};

VISTREL_ENUM(NSInteger, NSVisualEffectBlendingMode){
    NSVisualEffectBlendingModeBehindWindow,
    NSVisualEffectBlendingModeWithinWindow,
};

VISTREL_ENUM(NSInteger, NSVisualEffectState){
    NSVisualEffectStateFollowsWindowActiveState,
    NSVisualEffectStateActive,
    NSVisualEffectStateInactive,
};

VISTREL_MACOS(10.10)
@interface NSVisualEffectView : NSView
@property NSVisualEffectMaterial material;
@property NSVisualEffectBlendingMode blendingMode;
@property NSVisualEffectState state;
// Where the material shows: the mask's opaque parts; cap insets stretch it.
@property(nullable, strong) NSImage* maskImage;
@end
