#include "tracking/thumbnail_reader.h"

#include "platform/platform.h"
#include "tracking/ax.h"
#include "tracking/mission_control_host.h"

namespace vistrel {

namespace {

constexpr std::string_view children = "AXChildren";
constexpr std::string_view identifier = "AXIdentifier";

bool isIdentified(const AXElement& element, std::string_view wanted) {
    return AX::string(element, identifier) == wanted;
}

}  // namespace

std::vector<Rect> ThumbnailReader::frames() {
    if (MissionControlHosts::running() == MissionControlHost::windowManager) {
        return windowManagerFrames();
    }
    return dockFrames();
}

std::vector<Rect> ThumbnailReader::dockFrames() {
    std::vector<Rect> result;
    const auto dock = dock_.get();
    hostPid_ = dock_.pid();
    if (!dock) return result;
    for (const AXElement& container : AX::elements(*dock, children)) {
        if (!isIdentified(container, missionControlIdentifier)) continue;
        for (const AXElement& level : AX::elements(container, children)) {
            appendGroupFrames(level, result);
        }
    }
    return result;
}

std::vector<Rect> ThumbnailReader::windowManagerFrames() {
    std::vector<Rect> result;
    for (const MissionControlThumbnail& thumbnail : windowManager_.read()) {
        result.push_back(thumbnail.frame);
    }
    hostPid_ = windowManager_.pid();
    return result;
}

// The thumbnails of every "mc.windows" group among the children of one level of the
// container: the walk's fixed depth, without recursion.
void ThumbnailReader::appendGroupFrames(const AXElement& level, std::vector<Rect>& frames) {
    for (const AXElement& group : AX::elements(level, children)) {
        if (!isIdentified(group, windowsIdentifier)) continue;
        for (const AXElement& thumbnail : AX::elements(group, children)) {
            if (auto frame = AX::frame(thumbnail)) frames.push_back(*frame);
        }
    }
}

}  // namespace vistrel
