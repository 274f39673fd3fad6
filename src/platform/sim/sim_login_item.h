#pragma once

#include <optional>
#include <string>

#include "platform/login_item.h"

namespace vistrel {

// The agent's login item as the simulated system keeps it.
class SimLoginItem : public LoginItem {
  public:
    LoginItemStatus status() override;
    std::optional<std::string> registerItem() override;
    std::optional<std::string> unregisterItem() override;
    void openSystemSettingsLoginItems() override { ++settingsOpened_; }

    void setStatus(LoginItemStatus status) { status_ = status; }
    // The system holds a new registration for the user's approval.
    bool registrationNeedsApproval = false;
    // The next register or unregister fails with this description.
    std::optional<std::string> failure;
    int settingsOpened() const { return settingsOpened_; }
    int statusReads() const { return statusReads_; }

  private:
    LoginItemStatus status_ = LoginItemStatus::notRegistered;
    int settingsOpened_ = 0;
    int statusReads_ = 0;
};

}  // namespace vistrel
