// A selector NSRunningApplication does not have (the real one is -activateWithOptions:).
// expect: no visible @interface for 'NSRunningApplication' declares the selector
// 'activateIgnoringOtherApps'
#import <AppKit/AppKit.h>

BOOL bringForward(NSRunningApplication* application) {
    return [application activateIgnoringOtherApps];
}
