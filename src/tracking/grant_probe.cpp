#include "tracking/grant_probe.h"

#include <string_view>

#include "platform/platform.h"
#include "tracking/application_element.h"
#include "tracking/thumbnail_reader.h"

namespace vistrel {

namespace {

constexpr std::string_view roleAttribute = "AXRole";

}  // namespace

bool GrantProbe::failsAsStale(AXError error) {
    return error == AXError::apiDisabled || error == AXError::cannotComplete;
}

std::optional<AXError> GrantProbe::readDock() {
    ApplicationElement dock(ThumbnailReader::dockBundleIdentifier, ThumbnailReader::dockTimeout);
    const auto element = dock.get();
    if (!element) return std::nullopt;
    AXValue role;
    return platform().accessibility.copyAttribute(*element, roleAttribute, role);
}

}  // namespace vistrel
