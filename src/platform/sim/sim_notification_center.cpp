#include "platform/sim/sim_notification_center.h"

#include "platform/sim/sim_executor.h"

namespace vistrel {

void SimNotificationCenter::observe(const std::string& name, Observer observer) {
    observers_.emplace(name, std::move(observer));
}

void SimNotificationCenter::post(const std::string& name, const UserInfo& userInfo) {
    posted.emplace_back(name, userInfo);
    if (dropsPosts) return;
    const auto [first, last] = observers_.equal_range(name);
    for (auto it = first; it != last; ++it) {
        executor_.main().async([observer = it->second, userInfo] { observer(userInfo); });
    }
}

}  // namespace vistrel
