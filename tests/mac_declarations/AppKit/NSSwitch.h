#pragma once

#include <AppKit/NSControl.h>

VISTREL_MACOS(10.15)
@interface NSSwitch : NSControl
@property NSControlStateValue state;
@end
