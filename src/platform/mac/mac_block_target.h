#pragma once

#import <AppKit/AppKit.h>

// A target for AppKit's target-action: its `run:` calls a block. The status button and the
// native menu items keep one each.
@interface VistrelBlockTarget : NSObject

- (instancetype)initWithHandler:(void (^)(void))handler;
- (void)run:(id)sender;

@end
