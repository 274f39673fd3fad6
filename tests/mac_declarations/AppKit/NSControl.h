#pragma once

#include <AppKit/NSEvent.h>
#include <AppKit/NSFont.h>
#include <AppKit/NSView.h>
#include <Foundation/NSString.h>

typedef NSInteger NSControlStateValue;
static const NSControlStateValue NSControlStateValueMixed = -1;
static const NSControlStateValue NSControlStateValueOff = 0;
static const NSControlStateValue NSControlStateValueOn = 1;

@interface NSControl : NSView
@property(copy) NSString* stringValue;
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property(nullable, strong) NSFont* font;
@property(getter=isEnabled) BOOL enabled;
@property double doubleValue;
@property NSInteger tag;
// The events that send the action; answers the mask it replaced.
- (NSInteger)sendActionOn:(NSEventMask)mask;
@end
