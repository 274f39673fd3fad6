#pragma once

#include <Foundation/NSBundle.h>

@interface NSBundle (AtPath)
// Nil when no bundle is at that path.
+ (nullable instancetype)bundleWithPath:(NSString*)path;
@end
