#pragma once

#include <AppKit/NSImage.h>

// The accessors of NSImage's `template` property (a keyword in Objective-C++): a template
// image is drawn by its alpha only, tinted by whoever shows it (the menu bar).
@interface NSImage (VistrelTemplate)
- (BOOL)isTemplate VISTREL_MACOS(10.5);
- (void)setTemplate:(BOOL)isTemplate VISTREL_MACOS(10.5);
@end
