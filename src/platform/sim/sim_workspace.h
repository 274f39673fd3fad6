#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/screen_list.h"
#include "platform/workspace.h"

namespace vistrel {

class SimDesktop;

// NSWorkspace over the simulated applications.
class SimWorkspace : public Workspace {
  public:
    explicit SimWorkspace(SimDesktop& desktop) : desktop_(desktop) {}

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

    // Installed applications by bundle identifier: where each one lives.
    std::map<std::string, std::string> installed;
    // How an application is launched; without it openApplication fails.
    std::function<void(const std::string& url, const OpenConfiguration&, OpenCompletion)> launcher;
    std::vector<std::string> openedURLs;
    std::vector<Pid> activations;
    // Every launch asked for and waited on, with its configuration.
    std::vector<std::pair<std::string, OpenConfiguration>> launchRequests;
    // Every openApplication call, with its configuration.
    std::vector<std::pair<std::string, OpenConfiguration>> openRequests;
    // Every file opened in an application: the file's URL and the application's path.
    std::vector<std::pair<std::string, std::string>> documentRequests;
    // Where a file opened in an application shows its window.
    Rect documentWindowFrame{200, 120, 800, 560};

  private:
    SimDesktop& desktop_;
};

// NSScreen over the simulated screens.
class SimScreenList : public ScreenList {
  public:
    explicit SimScreenList(SimDesktop& desktop) : desktop_(desktop) {}
    std::vector<ScreenDescription> screens() override;
    std::optional<std::size_t> mainScreenIndex() override;
    bool screensHaveSeparateSpaces() override;

  private:
    SimDesktop& desktop_;
};

}  // namespace vistrel
