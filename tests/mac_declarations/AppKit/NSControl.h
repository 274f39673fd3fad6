#pragma once

#include <AppKit/NSView.h>
#include <Foundation/NSString.h>

@interface NSControl : NSView
@property(copy) NSString* stringValue;
@end
