#pragma once

#include <Foundation/NSString.h>

VISTREL_EXTERN_C_BEGIN
// The current user's home directory.
NSString* NSHomeDirectory(void);
// The temporary directory for the current user.
NSString* NSTemporaryDirectory(void);
VISTREL_EXTERN_C_END

@interface NSString (NSStringPathExtensions)
- (NSString*)stringByAppendingPathComponent:(NSString*)str;
@end
