#pragma once

#include "platform/login_item.h"

namespace vistrel {

// SMAppService.mainAppService.
class MacLoginItem : public LoginItem {
  public:
    LoginItemStatus status() override;
    std::optional<std::string> registerItem() override;
    std::optional<std::string> unregisterItem() override;
    void openSystemSettingsLoginItems() override;
};

}  // namespace vistrel
