#include "platform/mac/mac_event_monitors.h"
#include "platform/mac/mac_strings.h"

#import <AppKit/AppKit.h>

namespace vistrel {

namespace {

NSMutableDictionary* table(void* monitors) {
    return (__bridge NSMutableDictionary*)monitors;
}

NSNumber* key(std::uint64_t token) {
    return [NSNumber numberWithLongLong:static_cast<long long>(token)];
}

}  // namespace

MacEventMonitors::MacEventMonitors()
    : monitors_((__bridge_retained void*)[NSMutableDictionary dictionary]) {}

MacEventMonitors::~MacEventMonitors() {
    NSMutableDictionary* monitors = (__bridge_transfer NSMutableDictionary*)monitors_;
    for (NSNumber* token in monitors)
        [NSEvent removeMonitor:monitors[token]];
}

std::uint64_t MacEventMonitors::addOutsideMouseDownMonitor(std::function<void()> handler) {
    id monitor = [NSEvent
        addGlobalMonitorForEventsMatchingMask:NSEventMaskLeftMouseDown | NSEventMaskRightMouseDown
                                      handler:^(NSEvent* event) {
                                        (void)event;
                                        if (handler) handler();
                                      }];
    if (monitor == nil) return 0;
    table(monitors_)[key(next_)] = monitor;
    return next_++;
}

std::uint64_t MacEventMonitors::addLocalKeyDownMonitor(KeyHandler handler) {
    id monitor = [NSEvent
        addLocalMonitorForEventsMatchingMask:NSEventMaskKeyDown
                                     handler:^NSEvent*(NSEvent* event) {
                                       const KeyPress press{
                                           utf8(event.charactersIgnoringModifiers),
                                           static_cast<std::uint64_t>(
                                               event.modifierFlags &
                                               NSEventModifierFlagDeviceIndependentFlagsMask)};
                                       return handler && handler(press) ? nil : event;
                                     }];
    if (monitor == nil) return 0;
    table(monitors_)[key(next_)] = monitor;
    return next_++;
}

void MacEventMonitors::removeMonitor(std::uint64_t token) {
    id monitor = table(monitors_)[key(token)];
    if (monitor == nil) return;
    [NSEvent removeMonitor:monitor];
    table(monitors_)[key(token)] = nil;
}

}  // namespace vistrel
