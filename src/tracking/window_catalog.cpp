#include "tracking/window_catalog.h"

#include "platform/platform.h"

namespace vistrel {

namespace {

constexpr std::string_view windowsAttribute = "AXWindows";
constexpr std::string_view titleAttribute = "AXTitle";
constexpr std::string_view minimizedAttribute = "AXMinimized";

}  // namespace

void WindowCatalog::enumerate(Pid ownPid) {
    facts_.clear();
    windows_.clear();
    for (const RunningApplication& app : platform().workspace.runningApplications()) {
        if (app.pid == ownPid || app.activationPolicy != ActivationPolicy::regular || app.hidden ||
            app.terminated) {
            continue;
        }
        appendApplication(app.pid, app.bundleIdentifier.value_or(std::string()));
    }
}

void WindowCatalog::appendApplication(Pid pid, const std::string& bundleIdentifier) {
    Accessibility& accessibility = platform().accessibility;
    const AXElement application = accessibility.application(pid);
    accessibility.setMessagingTimeout(application, applicationTimeout);
    for (const AXElement& window :
         AX::elements(application, windowsAttribute, applicationTimeout)) {
        const auto frame = AX::frame(window);
        if (!frame || AX::value<bool>(window, minimizedAttribute).value_or(false)) continue;
        facts_.push_back(
            {AX::string(window, titleAttribute).value_or(std::string()), bundleIdentifier, *frame});
        windows_.push_back({window, pid});
    }
}

}  // namespace vistrel
