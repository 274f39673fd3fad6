#pragma once

#include <AppKit/NSImage.h>
#include <AppKit/NSRunningApplication.h>
#include <Foundation/NSArray.h>
#include <Foundation/NSError.h>
#include <Foundation/NSNotification.h>
#include <Foundation/NSURL.h>

VISTREL_MACOS(10.15)
@interface NSWorkspaceOpenConfiguration : NSObject <NSCopying>
+ (instancetype)configuration;
@property BOOL activates;
@property BOOL hides;
@property BOOL createsNewApplicationInstance;
@property(copy) NSArray<NSString*>* arguments;
@end

@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
@property(readonly, copy) NSArray<NSRunningApplication*>* runningApplications VISTREL_MACOS(10.6);
// Workspace notifications are posted here only, not on the default centre.
@property(readonly, strong) NSNotificationCenter* notificationCenter;
- (nullable NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)bundleIdentifier
    VISTREL_MACOS(10.6);
- (NSImage*)iconForFile:(NSString*)fullPath;
- (BOOL)openURL:(NSURL*)url;
// The handler runs on a concurrent queue of the workspace's.
- (void)openApplicationAtURL:(NSURL*)applicationURL
               configuration:(NSWorkspaceOpenConfiguration*)configuration
           completionHandler:(nullable void (^)(NSRunningApplication* _Nullable app,
                                                NSError* _Nullable error))completionHandler
    VISTREL_MACOS(10.15);
// Opens the files (or folders) with the application; the handler runs on a concurrent queue.
- (void)openURLs:(NSArray<NSURL*>*)urls
    withApplicationAtURL:(NSURL*)applicationURL
           configuration:(NSWorkspaceOpenConfiguration*)configuration
       completionHandler:(nullable void (^)(NSRunningApplication* _Nullable app,
                                            NSError* _Nullable error))completionHandler
    VISTREL_MACOS(10.15);
@end

// Posted on the workspace's notification centre when the Mac wakes from sleep; no user info.
extern NSNotificationName const NSWorkspaceDidWakeNotification;
