#include "platform/mac/mac_notification_center.h"

#import <Foundation/Foundation.h>
#include <dispatch/dispatch.h>

#include "platform/mac/mac_property_list.h"
#include "platform/mac/mac_strings.h"

// Receives one distributed notification by selector, because only the selector form lets an
// observer ask for immediate delivery: an accessory agent is almost never the active
// application, and for an inactive one the centre otherwise holds notifications back.
@interface VistrelNotificationObserver : NSObject
- (instancetype)initWithHandler:(void (^)(NSNotification* notification))handler;
- (void)receive:(NSNotification*)notification;
@end

@implementation VistrelNotificationObserver {
    void (^handler_)(NSNotification* notification);
}

- (instancetype)initWithHandler:(void (^)(NSNotification* notification))handler {
    if ((self = [super init])) handler_ = handler;
    return self;
}

- (void)receive:(NSNotification*)notification {
    if (handler_) handler_(notification);
}

@end

namespace vistrel {

namespace {

// The centre does not keep its observers; the agent's live as long as the process.
NSMutableArray<VistrelNotificationObserver*>* observers() {
    static NSMutableArray<VistrelNotificationObserver*>* kept = [NSMutableArray array];
    return kept;
}

}  // namespace

void MacNotificationCenter::observe(const std::string& name, Observer observer) {
    VistrelNotificationObserver* receiver =
        [[VistrelNotificationObserver alloc] initWithHandler:^(NSNotification* notification) {
          NSDictionary* info = notification.userInfo;
          dispatch_async(dispatch_get_main_queue(), ^{
            NotificationCenter::UserInfo userInfo;
            if (info != nil) userInfo = MacPropertyList::value(info).dictionary();
            observer(userInfo);
          });
        }];
    [observers() addObject:receiver];
    [NSDistributedNotificationCenter.defaultCenter
               addObserver:receiver
                  selector:@selector(receive:)
                      name:nsString(name)
                    object:nil
        suspensionBehavior:NSNotificationSuspensionBehaviorDeliverImmediately];
}

void MacNotificationCenter::post(const std::string& name, const UserInfo& userInfo) {
    NSDictionary* info = userInfo ? MacPropertyList::object(DefaultsValue(*userInfo)) : nil;
    [NSDistributedNotificationCenter.defaultCenter postNotificationName:nsString(name)
                                                                 object:nil
                                                               userInfo:info
                                                     deliverImmediately:YES];
}

}  // namespace vistrel
