#pragma once

#include <AppKit/NSResponder.h>
#include <AppKit/NSRunningApplication.h>

@interface NSApplication : NSResponder
@property(class, readonly, strong) __kindof NSApplication* sharedApplication;
- (NSApplicationActivationPolicy)activationPolicy VISTREL_MACOS(10.6);
// NO when the policy cannot be changed.
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy VISTREL_MACOS(10.6);
- (void)activate VISTREL_MACOS(14.0);
@end

VISTREL_EXTERN_C_BEGIN
int NSApplicationMain(int argc, const char* _Nonnull argv[_Nonnull]);
VISTREL_EXTERN_C_END
