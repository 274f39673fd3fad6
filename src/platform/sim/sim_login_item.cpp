#include "platform/sim/sim_login_item.h"

namespace vistrel {

LoginItemStatus SimLoginItem::status() {
    ++statusReads_;
    return status_;
}

std::optional<std::string> SimLoginItem::registerItem() {
    if (failure) return failure;
    status_ =
        registrationNeedsApproval ? LoginItemStatus::requiresApproval : LoginItemStatus::enabled;
    return std::nullopt;
}

std::optional<std::string> SimLoginItem::unregisterItem() {
    if (failure) return failure;
    status_ = LoginItemStatus::notRegistered;
    return std::nullopt;
}

}  // namespace vistrel
