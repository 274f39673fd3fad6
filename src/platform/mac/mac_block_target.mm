#include "platform/mac/mac_block_target.h"

@implementation VistrelBlockTarget {
    void (^handler_)(void);
}

- (instancetype)initWithHandler:(void (^)(void))handler {
    if ((self = [super init])) handler_ = handler;
    return self;
}

- (void)run:(id)sender {
    (void)sender;
    if (handler_) handler_();
}

@end

namespace vistrel {

NSButton* makeBlockButton(NSString* title, NSMutableArray<VistrelBlockTarget*>* targets,
                          void (^handler)(void)) {
    VistrelBlockTarget* target = [[VistrelBlockTarget alloc] initWithHandler:handler];
    [targets addObject:target];
    return [NSButton buttonWithTitle:title target:target action:@selector(run:)];
}

}  // namespace vistrel
