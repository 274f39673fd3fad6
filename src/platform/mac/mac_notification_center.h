#pragma once

#include "platform/notification_center.h"

namespace vistrel {

// NSDistributedNotificationCenter.defaultCenter.
class MacNotificationCenter : public NotificationCenter {
  public:
    void observe(const std::string& name, Observer observer) override;
    void post(const std::string& name, const UserInfo& userInfo) override;
};

}  // namespace vistrel
