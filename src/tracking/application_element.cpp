#include "tracking/application_element.h"

#include "platform/platform.h"

namespace vistrel {

std::optional<AXElement> ApplicationElement::get() {
    Workspace& workspace = platform().workspace;
    if (element_) {
        const auto running = workspace.application(pid_);
        if (running && !running->terminated) return element_;
    }
    for (const RunningApplication& app : workspace.runningApplications()) {
        if (app.bundleIdentifier != bundleIdentifier_) continue;
        Accessibility& accessibility = platform().accessibility;
        pid_ = app.pid;
        element_ = accessibility.application(app.pid);
        accessibility.setMessagingTimeout(element_, timeout_);
        return element_;
    }
    return std::nullopt;
}

}  // namespace vistrel
