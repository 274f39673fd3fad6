#pragma once

#include <Foundation/NSGeometry.h>
#include <Foundation/NSObject.h>
#include <Foundation/NSString.h>

VISTREL_ENUM(NSInteger, NSImageResizingMode){
    NSImageResizingModeTile = 0,
    NSImageResizingModeStretch = 1,
};

@interface NSImage : NSObject <NSCopying>
// The handler draws the image whenever it is needed, at any resolution.
+ (NSImage*)imageWithSize:(NSSize)size
                  flipped:(BOOL)drawingHandlerShouldBeCalledWithFlippedContext
           drawingHandler:(BOOL (^)(NSRect dstRect))drawingHandler VISTREL_MACOS(10.8);
@property NSEdgeInsets capInsets VISTREL_MACOS(10.10);
@property NSImageResizingMode resizingMode VISTREL_MACOS(10.10);
- (void)drawInRect:(NSRect)rect VISTREL_MACOS(10.9);
// Nil when the system has no symbol of that name.
+ (nullable NSImage*)imageWithSystemSymbolName:(NSString*)name
                      accessibilityDescription:(nullable NSString*)description VISTREL_MACOS(11.0);
@end
