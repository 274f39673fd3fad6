#include "platform/mac/mac_notification_center.h"

#import <Foundation/Foundation.h>

#include "platform/mac/mac_property_list.h"

namespace vistrel {

void MacNotificationCenter::observe(const std::string& name, Observer observer) {
    // The centre keeps the block for the life of the process, as the agent's observers live.
    [NSDistributedNotificationCenter.defaultCenter
        addObserverForName:MacPropertyList::string(name)
                    object:nil
                     queue:NSOperationQueue.mainQueue
                usingBlock:^(NSNotification* notification) {
                  NotificationCenter::UserInfo userInfo;
                  if (notification.userInfo != nil) {
                      userInfo = MacPropertyList::value(notification.userInfo).dictionary();
                  }
                  observer(userInfo);
                }];
}

void MacNotificationCenter::post(const std::string& name, const UserInfo& userInfo) {
    NSDictionary* info = userInfo ? MacPropertyList::object(DefaultsValue(*userInfo)) : nil;
    [NSDistributedNotificationCenter.defaultCenter
        postNotificationName:MacPropertyList::string(name)
                      object:nil
                    userInfo:info
          deliverImmediately:YES];
}

}  // namespace vistrel
