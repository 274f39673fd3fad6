#pragma once

#include <AppKit/NSText.h>

@interface NSTextContainer : NSObject
@property BOOL widthTracksTextView;
@property NSSize size VISTREL_MACOS(10.11);
@end

@interface NSTextView : NSText
- (instancetype)initWithFrame:(NSRect)frameRect;
@property(nullable, readonly) NSTextContainer* textContainer;
@property(getter=isAutomaticQuoteSubstitutionEnabled)
    BOOL automaticQuoteSubstitutionEnabled VISTREL_MACOS(10.5);
@end
