#pragma once

#include "platform/screen_list.h"
#include "platform/workspace.h"

namespace vistrel {

// NSWorkspace, NSRunningApplication and the main bundle.
class MacWorkspace : public Workspace {
  public:
    std::vector<RunningApplication> runningApplications() override;
    std::optional<RunningApplication> application(Pid pid) override;
    bool hide(Pid pid) override;
    bool unhide(Pid pid) override;
    bool activate(Pid pid) override;
    bool terminate(Pid pid) override;
    bool forceTerminate(Pid pid) override;
    std::optional<std::string> applicationURL(const std::string& bundleIdentifier) override;
    void openApplication(const std::string& url, const OpenConfiguration& configuration,
                         OpenCompletion completion) override;
    bool launchApplication(const std::string& url, const OpenConfiguration& configuration,
                           double timeout) override;
    bool openDocument(const std::string& fileURL, const std::string& applicationURL,
                      const OpenConfiguration& configuration, double timeout) override;
    std::shared_ptr<const Image> applicationIcon(const std::string& bundleIdentifier,
                                                 int pixels) override;
    bool openURL(const std::string& url) override;
    Pid ownPid() override;
    BundleInfo mainBundle() override;
    std::optional<std::string> bundleIdentifier(const std::string& bundlePath) override;
};

// NSScreen.
class MacScreenList : public ScreenList {
  public:
    std::vector<ScreenDescription> screens() override;
    std::optional<std::size_t> mainScreenIndex() override;
    bool screensHaveSeparateSpaces() override;
};

}  // namespace vistrel
