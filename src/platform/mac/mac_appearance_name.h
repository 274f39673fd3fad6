#pragma once

#import <AppKit/AppKit.h>

#include "platform/appearance.h"

namespace vistrel {

// The appearance an NSAppearance draws in: its best match among aqua, darkAqua and their
// high-contrast forms, the dark ones giving `dark`, anything else (no match included) `light`.
Appearance appearanceOf(NSAppearance* appearance);

}  // namespace vistrel
