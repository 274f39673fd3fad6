#pragma once

#include <Foundation/NSObject.h>

@interface NSProcessInfo : NSObject
@property(class, readonly, strong) NSProcessInfo* processInfo;
@property(readonly) int processIdentifier;
@end
