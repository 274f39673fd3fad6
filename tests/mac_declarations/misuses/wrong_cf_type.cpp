// An array where Core Foundation wants a string.
// expect: 'CFArrayRef' (aka 'const __CFArray *') to 'CFStringRef'
#include <CoreFoundation/CoreFoundation.h>

CFIndex titleLength(CFArrayRef titles) {
    return CFStringGetLength(titles);
}
