#pragma once

#include <Foundation/NSObject.h>

@interface NSColor : NSObject <NSCopying>
@property(class, strong, readonly) NSColor* blackColor;
@property(class, strong, readonly) NSColor* clearColor;
// Makes this the fill colour of the current graphics context.
- (void)setFill;
@end
