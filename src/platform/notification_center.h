#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/defaults_value.h"

namespace vistrel {

// NSDistributedNotificationCenter.defaultCenter: notifications between the processes of one
// user, each with an optional user-info dictionary of property-list values.
class NotificationCenter {
  public:
    virtual ~NotificationCenter() = default;
    using UserInfo = std::optional<DefaultsValue::Dictionary>;
    using Observer = std::function<void(const UserInfo& userInfo)>;

    // addObserver(_:selector:name:object:) with object nil. The observer runs on the main
    // thread for every notification of that name, for the life of the process.
    virtual void observe(const std::string& name, Observer observer) = 0;
    // postNotificationName(_:object:userInfo:deliverImmediately:) with object nil and
    // immediate delivery; a post that cannot be delivered is lost without notice.
    virtual void post(const std::string& name, const UserInfo& userInfo) = 0;
};

}  // namespace vistrel
