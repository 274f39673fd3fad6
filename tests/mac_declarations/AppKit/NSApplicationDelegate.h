#pragma once

#include <AppKit/NSApplication.h>
#include <Foundation/NSNotification.h>

@protocol NSApplicationDelegate <NSObject>
@optional
- (void)applicationDidFinishLaunching:(NSNotification*)notification;
- (BOOL)applicationShouldHandleReopen:(NSApplication*)sender hasVisibleWindows:(BOOL)flag;
- (BOOL)applicationShouldTerminateAfterLastWindowClosed:(NSApplication*)sender;
- (BOOL)applicationSupportsSecureRestorableState:(NSApplication*)app VISTREL_MACOS(12.0);
@end

@interface NSApplication (Delegate)
// The application holds its delegate weakly.
@property(nullable, weak) id<NSApplicationDelegate> delegate;
// Runs the event loop until the application is terminated.
- (void)run;
@end
