#pragma once

#include <AppKit/NSModalResponse.h>
#include <AppKit/NSWindow.h>
#include <Foundation/NSString.h>
#include <Foundation/NSURL.h>

@interface NSPanel : NSWindow
@end

@interface NSSavePanel : NSPanel
+ (NSSavePanel*)savePanel;
@property(copy) NSString* nameFieldStringValue VISTREL_MACOS(10.6);
@property BOOL canCreateDirectories VISTREL_MACOS(10.1);
- (NSModalResponse)runModal;
// The chosen place; nil until the user confirmed one.
@property(nullable, readonly, copy) NSURL* URL;
@end
