#pragma once

#include <Foundation/NSString.h>

@interface NSUserDefaults : NSObject
@property(class, readonly, strong) NSUserDefaults* standardUserDefaults;
// Nil when the suite name is the application's own identifier or NSGlobalDomain.
- (nullable instancetype)initWithSuiteName:(nullable NSString*)suitename VISTREL_MACOS(10.9);
- (nullable id)objectForKey:(NSString*)defaultName;
- (void)setObject:(nullable id)value forKey:(NSString*)defaultName;
- (void)removeObjectForKey:(NSString*)defaultName;
@end
