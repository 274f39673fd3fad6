#pragma once

#include <objc/objc.h>

@protocol NSObject
- (BOOL)isKindOfClass:(Class)aClass;
@end

// The root class every Foundation and AppKit class inherits from.
__attribute__((objc_root_class))
@interface NSObject<NSObject>
+ (instancetype)alloc;
+ (instancetype)new;
+ (Class)class;
- (instancetype)init;
@end
