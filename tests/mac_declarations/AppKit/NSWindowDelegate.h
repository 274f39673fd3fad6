#pragma once

#include <AppKit/NSSplitViewController.h>
#include <AppKit/NSWindow.h>
#include <Foundation/NSNotification.h>
#include <Foundation/NSString.h>

@protocol NSWindowDelegate <NSObject>
@optional
- (void)windowWillClose:(NSNotification*)notification;
- (void)windowDidMiniaturize:(NSNotification*)notification;
- (void)windowDidDeminiaturize:(NSNotification*)notification;
@end

// What an ordinary titled window needs beyond the agent's borderless ones.
@interface NSWindow (VistrelTitledWindow)
@property(copy) NSString* title;
@property(nullable, weak) id<NSWindowDelegate> delegate;
@property(nullable, strong) NSViewController* contentViewController VISTREL_MACOS(10.10);
@property NSSize contentMinSize;
- (void)setContentSize:(NSSize)size;
- (void)center;
- (void)makeKeyAndOrderFront:(nullable id)sender;
- (void)performClose:(nullable id)sender;
- (void)performMiniaturize:(nullable id)sender;
@end
