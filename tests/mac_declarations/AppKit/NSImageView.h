#pragma once

#include <AppKit/NSColor.h>
#include <AppKit/NSControl.h>
#include <AppKit/NSImage.h>

@interface NSImageView : NSControl
+ (instancetype)imageViewWithImage:(NSImage*)image VISTREL_MACOS(10.12);
@property(nullable, strong) NSImage* image;
@property(nullable, copy) NSColor* contentTintColor VISTREL_MACOS(10.14);
@end
