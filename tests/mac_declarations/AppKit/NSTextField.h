#pragma once

#include <AppKit/NSControl.h>

@interface NSTextField : NSControl
@property(nullable, copy) NSString* placeholderString VISTREL_MACOS(10.10);
@end
