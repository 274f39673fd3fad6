#pragma once

#include <Foundation/NSBundle.h>

@interface NSBundle (InfoDictionaryKeys)
// The value of the key, localized where the bundle localizes it; nil when it is missing.
- (nullable id)objectForInfoDictionaryKey:(NSString*)key;
@end
