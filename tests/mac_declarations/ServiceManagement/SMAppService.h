#pragma once

#include <Foundation/NSError.h>

VISTREL_ENUM(NSInteger, SMAppServiceStatus){
    SMAppServiceStatusNotRegistered = 0,
    SMAppServiceStatusEnabled = 1,
    SMAppServiceStatusRequiresApproval = 2,
    SMAppServiceStatusNotFound = 3,
};

// Registers the app itself (or a helper) to start at login.
VISTREL_MACOS(13.0)
@interface SMAppService : NSObject
@property(class, readonly) SMAppService* mainAppService;
@property(readonly) SMAppServiceStatus status;
- (BOOL)registerAndReturnError:(NSError**)error;
- (BOOL)unregisterAndReturnError:(NSError**)error;
+ (void)openSystemSettingsLoginItems;
@end
