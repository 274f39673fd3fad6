#include "tracking/window_by_number.h"

#include <cmath>
#include <vector>

#include "platform/platform.h"

namespace vistrel::WindowByNumber {

namespace {

struct Listed {
    Pid pid = 0;
    Rect bounds;
};

std::optional<Listed> listed(std::uint32_t number) {
    const auto list = platform().windowServer.windowList(WindowListOption::onScreenOnly);
    if (!list) return std::nullopt;
    for (const WindowDescription& window : *list) {
        if (window.number != number) continue;
        if (!window.ownerPid || !window.bounds) return std::nullopt;
        return Listed{*window.ownerPid, *window.bounds};
    }
    return std::nullopt;
}

bool matches(Rect frame, Rect bounds) {
    return std::abs(frame.x - bounds.x) <= frameTolerance &&
           std::abs(frame.y - bounds.y) <= frameTolerance &&
           std::abs(frame.width - bounds.width) <= frameTolerance &&
           std::abs(frame.height - bounds.height) <= frameTolerance;
}

}  // namespace

std::optional<AX::WindowHit> find(std::uint32_t number, const AXElement& thumbnail) {
    const auto entry = listed(number);
    if (!entry) return std::nullopt;
    Accessibility& accessibility = platform().accessibility;
    const AXElement application = accessibility.application(entry->pid);
    accessibility.setMessagingTimeout(application, applicationTimeout);
    std::vector<AXElement> matching;
    for (const AXElement& window :
         AX::elements(application, windowsAttribute, applicationTimeout)) {
        const auto frame = AX::frame(window);
        if (frame && matches(*frame, entry->bounds)) matching.push_back(window);
    }
    if (matching.empty()) return std::nullopt;
    if (matching.size() == 1) return AX::WindowHit{matching.front(), entry->pid};
    // Several windows at those bounds: the one titled like the thumbnail, when just one is;
    // otherwise none, since any pick could be another window than the one shown.
    const auto title = AX::string(thumbnail, titleAttribute);
    if (!title) return std::nullopt;
    std::optional<AX::WindowHit> titled;
    for (const AXElement& window : matching) {
        if (AX::string(window, titleAttribute) != title) continue;
        if (titled) return std::nullopt;
        titled = AX::WindowHit{window, entry->pid};
    }
    return titled;
}

}  // namespace vistrel::WindowByNumber
