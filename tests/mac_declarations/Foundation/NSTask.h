#pragma once

#include <Foundation/NSArray.h>
#include <Foundation/NSError.h>
#include <Foundation/NSURL.h>

// Process in Swift.
@interface NSTask : NSObject
@property(nullable, copy) NSURL* executableURL VISTREL_MACOS(10.13);
@property(nullable, copy) NSArray<NSString*>* arguments;
// NO (with the error) when the executable could not be started.
- (BOOL)launchAndReturnError:(out NSError* _Nullable* _Nullable)error VISTREL_MACOS(10.13);
- (void)waitUntilExit;
// Raises while the task is still running.
@property(readonly) int terminationStatus;
// An NSPipe or an NSFileHandle.
@property(nullable, retain) id standardOutput;
@property(nullable, retain) id standardError;
// Called on a queue of the task's own once the task has ended.
@property(nullable, copy) void (^terminationHandler)(NSTask* task) VISTREL_MACOS(10.7);
// Sends SIGTERM.
- (void)terminate;
@end
