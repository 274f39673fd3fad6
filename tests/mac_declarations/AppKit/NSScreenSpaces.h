#pragma once

#include <AppKit/NSScreen.h>

@interface NSScreen (NamesAndSpaces)
// "Built-in Retina Display", "Studio Display".
@property(readonly, copy) NSString* localizedName VISTREL_MACOS(10.15);
// The "Displays have separate Spaces" setting of Mission Control.
@property(class, readonly) BOOL screensHaveSeparateSpaces VISTREL_MACOS(10.9);
@end
