#pragma once

#import <AppKit/AppKit.h>

// A section's rounded box, as macOS settings windows group their rows: a faint fill and a
// hairline edge, both in the window's appearance. Its rows stack inside, separated by lines.
@interface VistrelSettingsGroupView : NSView

- (instancetype)initWithRows:(NSArray<NSView*>*)rows;

@end
