#pragma once

#include <Foundation/NSDictionary.h>
#include <Foundation/NSString.h>
#include <Foundation/NSURL.h>

@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@property(readonly, copy) NSString* bundlePath;
@property(nullable, readonly, copy) NSDictionary<NSString*, id>* infoDictionary;
// Nil when the bundle has no such resource.
- (nullable NSURL*)URLForResource:(nullable NSString*)name
                    withExtension:(nullable NSString*)ext VISTREL_MACOS(10.6);
@end
