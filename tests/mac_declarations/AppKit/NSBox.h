#pragma once

#include <AppKit/NSView.h>

VISTREL_ENUM(NSUInteger, NSBoxType){
    NSBoxSeparator = 2,
};

@interface NSBox : NSView
@property NSBoxType boxType;
@end
