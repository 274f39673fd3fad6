// A window frame given as a point.
// expect: no viable conversion from 'CGPoint' to 'NSRect'
#import <AppKit/AppKit.h>

void place(NSWindow* window, CGPoint origin) {
    [window setFrame:origin display:YES];
}
