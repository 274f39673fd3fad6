#pragma once

#include <Foundation/NSObjCRuntime.h>
#include <objc/NSObject.h>

@protocol NSCopying
@end
