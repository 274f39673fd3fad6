#pragma once

#include <sys/types.h>

#include <Foundation/NSString.h>
#include <Foundation/NSURL.h>

VISTREL_ENUM(NSInteger, NSApplicationActivationPolicy){
    NSApplicationActivationPolicyRegular,
    NSApplicationActivationPolicyAccessory,
    NSApplicationActivationPolicyProhibited,
};

VISTREL_OPTIONS(NSUInteger, NSApplicationActivationOptions){
    NSApplicationActivateAllWindows = 1 << 0,
};

VISTREL_MACOS(10.6)
@interface NSRunningApplication : NSObject
+ (nullable instancetype)runningApplicationWithProcessIdentifier:(pid_t)pid;
@property(readonly) pid_t processIdentifier;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@property(nullable, readonly, copy) NSString* localizedName;
@property(readonly) NSApplicationActivationPolicy activationPolicy;
@property(readonly, getter=isHidden) BOOL hidden;
@property(readonly, getter=isTerminated) BOOL terminated;
- (BOOL)hide;
- (BOOL)unhide;
- (BOOL)activateWithOptions:(NSApplicationActivationOptions)options;
- (BOOL)terminate;
- (BOOL)forceTerminate;
@end
