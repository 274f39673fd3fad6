// An AppKit method that arrived after the oldest macOS the app runs on, called unguarded.
// expect: 'activate' is only available on macOS 14.0 or newer
#import <AppKit/AppKit.h>

void comeForward() {
    [NSApplication.sharedApplication activate];
}
