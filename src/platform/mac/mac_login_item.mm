#include "platform/mac/mac_login_item.h"
#include "platform/mac/mac_strings.h"

#import <ServiceManagement/ServiceManagement.h>

namespace vistrel {

namespace {

std::optional<std::string> failure(BOOL ok, NSError* error) {
    if (ok) return std::nullopt;
    return describe(error);
}

}  // namespace

LoginItemStatus MacLoginItem::status() {
    switch (SMAppService.mainAppService.status) {
        case SMAppServiceStatusNotRegistered:
            return LoginItemStatus::notRegistered;
        case SMAppServiceStatusEnabled:
            return LoginItemStatus::enabled;
        case SMAppServiceStatusRequiresApproval:
            return LoginItemStatus::requiresApproval;
        case SMAppServiceStatusNotFound:
            return LoginItemStatus::notFound;
    }
    return LoginItemStatus::notFound;
}

std::optional<std::string> MacLoginItem::registerItem() {
    NSError* error = nil;
    const BOOL ok = [SMAppService.mainAppService registerAndReturnError:&error];
    return failure(ok, error);
}

std::optional<std::string> MacLoginItem::unregisterItem() {
    NSError* error = nil;
    const BOOL ok = [SMAppService.mainAppService unregisterAndReturnError:&error];
    return failure(ok, error);
}

void MacLoginItem::openSystemSettingsLoginItems() {
    [SMAppService openSystemSettingsLoginItems];
}

}  // namespace vistrel
