#pragma once

#include <AppKit/NSResponder.h>
#include <AppKit/NSRunningApplication.h>
#include <Foundation/NSNotification.h>

@interface NSApplication : NSResponder
@property(class, readonly, strong) __kindof NSApplication* sharedApplication;
- (NSApplicationActivationPolicy)activationPolicy VISTREL_MACOS(10.6);
// NO when the policy cannot be changed.
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy VISTREL_MACOS(10.6);
- (void)activate VISTREL_MACOS(14.0);
@end

// Posted on the main thread when the displays' configuration changes; no user info.
extern NSNotificationName const NSApplicationDidChangeScreenParametersNotification;

VISTREL_EXTERN_C_BEGIN
int NSApplicationMain(int argc, const char* _Nonnull argv[_Nonnull]);
VISTREL_EXTERN_C_END
