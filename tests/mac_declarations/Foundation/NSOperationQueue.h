#pragma once

#include <Foundation/NSObject.h>

@interface NSOperationQueue : NSObject
@property(class, readonly, strong) NSOperationQueue* mainQueue VISTREL_MACOS(10.6);
@end
