#include "platform/mac/mac_display_watch.h"

#import <AppKit/AppKit.h>

#include <memory>

namespace vistrel {

namespace {

// Observes one notification on the main queue; the token, retained, or null when refused.
void* observe(NSNotificationCenter* center, NSNotificationName name,
              std::shared_ptr<DisplayWatch::Observer> observer) {
    id<NSObject> token = [center addObserverForName:name
                                             object:nil
                                              queue:NSOperationQueue.mainQueue
                                         usingBlock:^(NSNotification* notification) {
                                           (void)notification;
                                           (*observer)();
                                         }];
    return token == nil ? nullptr : (__bridge_retained void*)token;
}

void forget(NSNotificationCenter* center, void*& token) {
    if (token == nullptr) return;
    id<NSObject> observer = (__bridge_transfer id<NSObject>)token;
    [center removeObserver:observer];
    token = nullptr;
}

NSNotificationCenter* workspaceCenter() {
    return NSWorkspace.sharedWorkspace.notificationCenter;
}

}  // namespace

bool MacDisplayWatch::start(Observer observer) {
    stop();
    auto shared = std::make_shared<Observer>(std::move(observer));
    screens_ = observe(NSNotificationCenter.defaultCenter,
                       NSApplicationDidChangeScreenParametersNotification, shared);
    wake_ = observe(workspaceCenter(), NSWorkspaceDidWakeNotification, shared);
    return screens_ != nullptr && wake_ != nullptr;
}

void MacDisplayWatch::stop() {
    forget(NSNotificationCenter.defaultCenter, screens_);
    forget(workspaceCenter(), wake_);
}

}  // namespace vistrel
