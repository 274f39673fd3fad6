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
