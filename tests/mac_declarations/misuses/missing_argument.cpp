// An event tap created without the pointer its callback receives.
// expect: requires 6 arguments, but 5 were provided
#include <ApplicationServices/ApplicationServices.h>

CFMachPortRef makeTap(CGEventMask mask, CGEventTapCallBack callback) {
    return CGEventTapCreate(kCGHIDEventTap, kCGHeadInsertEventTap, kCGEventTapOptionDefault, mask,
                            callback);
}
