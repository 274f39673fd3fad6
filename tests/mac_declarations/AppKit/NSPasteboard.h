#pragma once

#include <Foundation/NSObjCRuntime.h>
#include <Foundation/NSString.h>

typedef NSString* NSPasteboardType;

VISTREL_EXTERN_C_BEGIN
VISTREL_MACOS(10.6) extern NSPasteboardType const NSPasteboardTypeString;
VISTREL_EXTERN_C_END

@interface NSPasteboard : NSObject
@property(class, readonly, strong) NSPasteboard* generalPasteboard;
// The pasteboard's change count after clearing it.
- (NSInteger)clearContents VISTREL_MACOS(10.6);
// NO when another process took the pasteboard since it was cleared.
- (BOOL)setString:(NSString*)string forType:(NSPasteboardType)dataType;
@end
