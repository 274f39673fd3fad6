#include "tracking/thumbnail_reader.h"

#include "platform/platform.h"
#include "tracking/ax.h"

namespace vistrel {

namespace {

constexpr std::string_view children = "AXChildren";
constexpr std::string_view identifier = "AXIdentifier";

bool isIdentified(const AXElement& element, std::string_view wanted) {
    return AX::string(element, identifier) == wanted;
}

}  // namespace

std::optional<AXElement> ThumbnailReader::dockElement() {
    Workspace& workspace = platform().workspace;
    if (dock_) {
        const auto running = workspace.application(dockPid_);
        if (running && !running->terminated) return dock_;
    }
    for (const RunningApplication& app : workspace.runningApplications()) {
        if (app.bundleIdentifier != dockBundleIdentifier) continue;
        Accessibility& accessibility = platform().accessibility;
        dockPid_ = app.pid;
        dock_ = accessibility.application(app.pid);
        accessibility.setMessagingTimeout(dock_, dockTimeout);
        return dock_;
    }
    return std::nullopt;
}

std::vector<Rect> ThumbnailReader::frames() {
    std::vector<Rect> result;
    const auto dock = dockElement();
    if (!dock) return result;
    for (const AXElement& container : AX::elements(*dock, children)) {
        if (!isIdentified(container, missionControlIdentifier)) continue;
        for (const AXElement& level : AX::elements(container, children)) {
            appendGroupFrames(level, result);
        }
    }
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
