#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/notification_center.h"

namespace vistrel {

class SimExecutor;

// The distributed notification centre of the simulated desktop: a post reaches every
// observer of its name on the main queue, as the system delivers it, or is lost on purpose.
class SimNotificationCenter : public NotificationCenter {
  public:
    explicit SimNotificationCenter(SimExecutor& executor) : executor_(executor) {}

    void observe(const std::string& name, Observer observer) override;
    void post(const std::string& name, const UserInfo& userInfo) override;

    // Every post, delivered or not, in order.
    std::vector<std::pair<std::string, UserInfo>> posted;
    // While set, posts reach no observer (the receiving process is not listening yet).
    bool dropsPosts = false;

  private:
    SimExecutor& executor_;
    std::multimap<std::string, Observer> observers_;
};

}  // namespace vistrel
