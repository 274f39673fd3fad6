#include "tracking/thumbnail_reader.h"

#include "platform/platform.h"
#include "tracking/ax.h"

namespace vistrel {

namespace {

constexpr std::string_view children = "AXChildren";
constexpr std::string_view identifier = "AXIdentifier";
constexpr std::string_view title = "AXTitle";

bool isIdentified(const AXElement& element, std::string_view wanted) {
    return AX::string(element, identifier) == wanted;
}

}  // namespace

ThumbnailReader::Read ThumbnailReader::read() {
    const bool windowManagerFirst =
        MissionControlHosts::running() == MissionControlHost::windowManager;
    const MissionControlHost first =
        windowManagerFirst ? MissionControlHost::windowManager : MissionControlHost::dock;
    const MissionControlHost second =
        windowManagerFirst ? MissionControlHost::dock : MissionControlHost::windowManager;
    for (MissionControlHost host : {first, second}) {
        auto thumbnails =
            host == MissionControlHost::dock ? dockThumbnails() : windowManagerThumbnails();
        if (thumbnails) return {host, std::move(*thumbnails)};
    }
    hostPid_ = windowManagerFirst ? windowManager_.pid() : dock_.pid();
    return {};
}

std::vector<Rect> ThumbnailReader::frames() {
    std::vector<Rect> frames;
    for (const MissionControlThumbnail& thumbnail : read().thumbnails) {
        frames.push_back(thumbnail.frame);
    }
    return frames;
}

// The Dock's thumbnails when its "mc" group holds anything; nothing when it is absent or
// the empty stub macOS 27 leaves there.
std::optional<std::vector<MissionControlThumbnail>> ThumbnailReader::dockThumbnails() {
    const auto dock = dock_.get();
    if (!dock) return std::nullopt;
    bool found = false;
    std::vector<MissionControlThumbnail> thumbnails;
    for (const AXElement& container : AX::elements(*dock, children, dockTimeout)) {
        if (!isIdentified(container, missionControlIdentifier)) continue;
        for (const AXElement& level : AX::elements(container, children, dockTimeout)) {
            found = true;
            appendGroups(level, thumbnails);
        }
    }
    if (!found) return std::nullopt;
    hostPid_ = dock_.pid();
    return thumbnails;
}

std::optional<std::vector<MissionControlThumbnail>> ThumbnailReader::windowManagerThumbnails() {
    auto thumbnails = windowManager_.read();
    if (!windowManager_.foundDisplay()) return std::nullopt;
    hostPid_ = windowManager_.pid();
    return thumbnails;
}

// The thumbnails of every "mc.windows" group among the children of one level of the
// container: the walk's fixed depth, without recursion.
void ThumbnailReader::appendGroups(const AXElement& level,
                                   std::vector<MissionControlThumbnail>& thumbnails) {
    std::optional<Rect> display;
    bool displayRead = false;
    for (const AXElement& group : AX::elements(level, children, dockTimeout)) {
        if (!isIdentified(group, windowsIdentifier)) continue;
        if (!displayRead) {
            display = AX::frame(level);
            displayRead = true;
        }
        for (const AXElement& thumbnail : AX::elements(group, children, dockTimeout)) {
            const auto frame = AX::frame(thumbnail);
            if (!frame) continue;
            thumbnails.push_back({thumbnail, *frame, 0, AX::string(thumbnail, title),
                                  AX::string(thumbnail, identifier), display});
        }
    }
}

}  // namespace vistrel
