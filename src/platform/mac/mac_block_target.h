#pragma once

#import <AppKit/AppKit.h>

// A target for AppKit's target-action: its `run:` calls a block. The status button and the
// native menu items keep one each.
@interface VistrelBlockTarget : NSObject

- (instancetype)initWithHandler:(void (^)(void))handler;
- (void)run:(id)sender;

@end

namespace vistrel {

// A push button whose action runs `handler`. A control holds its target weakly, so the
// target is kept in `targets`, which must live as long as the button.
NSButton* makeBlockButton(NSString* title, NSMutableArray<VistrelBlockTarget*>* targets,
                          void (^handler)(void));

}  // namespace vistrel
