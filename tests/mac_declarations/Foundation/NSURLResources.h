#pragma once

#include <Foundation/NSError.h>
#include <Foundation/NSURL.h>

typedef NSString* NSURLResourceKey;

VISTREL_EXTERN_C_BEGIN
VISTREL_MACOS(10.6) extern const NSURLResourceKey NSURLContentModificationDateKey;
VISTREL_EXTERN_C_END

@interface NSURL (NSURLResources)
+ (NSURL*)fileURLWithPath:(NSString*)path isDirectory:(BOOL)isDir VISTREL_MACOS(10.5);
// NO when the value cannot be read; a value of nil means the resource has none.
- (BOOL)getResourceValue:(out id _Nullable* _Nonnull)value
                  forKey:(NSURLResourceKey)key
                   error:(out NSError* _Nullable* _Nullable)error VISTREL_MACOS(10.6);
@end
