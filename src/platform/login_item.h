#pragma once

#include <optional>
#include <string>

namespace vistrel {

// SMAppService.Status.
enum class LoginItemStatus { notRegistered, enabled, requiresApproval, notFound };

// SMAppService.mainApp: the agent itself as a login item.
class LoginItem {
  public:
    virtual ~LoginItem() = default;
    virtual LoginItemStatus status() = 0;
    // register() and unregister(): nothing on success, else the error's localized description.
    virtual std::optional<std::string> registerItem() = 0;
    virtual std::optional<std::string> unregisterItem() = 0;
    // SMAppService.openSystemSettingsLoginItems().
    virtual void openSystemSettingsLoginItems() = 0;
};

}  // namespace vistrel
