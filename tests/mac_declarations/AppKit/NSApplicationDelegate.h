#pragma once

#include <AppKit/NSApplication.h>
#include <Foundation/NSArray.h>
#include <Foundation/NSNotification.h>
#include <Foundation/NSURL.h>

@protocol NSApplicationDelegate <NSObject>
@optional
- (void)applicationDidFinishLaunching:(NSNotification*)notification;
- (BOOL)applicationShouldHandleReopen:(NSApplication*)sender hasVisibleWindows:(BOOL)flag;
- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)sender;
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)app VISTREL_MACOS(12.0);
// The URLs to open; those of a document type the app declares are not among them.
- (void)application:(NSApplication*)application
           openURLs:(NSArray<NSURL*>*)urls VISTREL_MACOS(10.13);
@end

@interface NSApplication (Delegate)
// The application holds its delegate weakly.
@property(nullable, weak) id<NSApplicationDelegate> delegate;
// Runs the event loop until the application is terminated.
- (void)run;
@end
