#pragma once

#include <AppKit/NSFont.h>
#include <AppKit/NSView.h>
#include <Foundation/NSString.h>

@interface NSText : NSView
@property(copy) NSString* string;
@property(getter=isRichText) BOOL richText;
@property(nullable, strong) NSFont* font;
@property(getter=isVerticallyResizable) BOOL verticallyResizable;
@property(getter=isHorizontallyResizable) BOOL horizontallyResizable;
@property NSSize minSize;
@property NSSize maxSize;
- (void)cut:(nullable id)sender;
- (void)copy:(nullable id)sender;
- (void)paste:(nullable id)sender;
- (void)selectAll:(nullable id)sender;
@end
