#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/canvas.h"
#include "platform/process.h"

namespace vistrel {

// NSApplicationActivationPolicy.
enum class ActivationPolicy { regular, accessory, prohibited };

// What the agent reads of one NSRunningApplication.
struct RunningApplication {
    Pid pid = 0;
    std::optional<std::string> bundleIdentifier;
    std::optional<std::string> localizedName;
    ActivationPolicy activationPolicy = ActivationPolicy::regular;
    bool hidden = false;
    bool terminated = false;

    friend bool operator==(const RunningApplication&, const RunningApplication&) = default;
};

// NSWorkspaceOpenConfiguration, as far as the agent sets it.
struct OpenConfiguration {
    bool activates = true;
    bool hides = false;
    std::vector<std::string> arguments;
    bool createsNewApplicationInstance = false;
};

// The main bundle of the running process.
struct BundleInfo {
    std::optional<std::string> identifier;  // CFBundleIdentifier
    std::string version;                    // CFBundleShortVersionString
    std::string build;                      // CFBundleVersion
    std::string path;                       // the bundle's folder
};

// NSWorkspace and NSRunningApplication.
class Workspace {
  public:
    virtual ~Workspace() = default;
    using OpenCompletion = std::function<void(bool ok, const std::string& error)>;

    // NSWorkspace.runningApplications, in the workspace's order.
    virtual std::vector<RunningApplication> runningApplications() = 0;
    // NSRunningApplication(processIdentifier:); nothing when no such process runs.
    virtual std::optional<RunningApplication> application(Pid pid) = 0;
    // hide(), unhide(), activate(), terminate(), forceTerminate(): whether the call succeeded.
    // activate() passes no options: without NSApplicationActivateAllWindows only the
    // application's key and main windows come forward.
    virtual bool hide(Pid pid) = 0;
    virtual bool unhide(Pid pid) = 0;
    virtual bool activate(Pid pid) = 0;
    virtual bool terminate(Pid pid) = 0;
    virtual bool forceTerminate(Pid pid) = 0;
    // urlForApplication(withBundleIdentifier:): the application's path, if it is installed.
    virtual std::optional<std::string> applicationURL(const std::string& bundleIdentifier) = 0;
    // openApplication(at:configuration:completionHandler:). The completion runs on the main queue.
    virtual void openApplication(const std::string& url, const OpenConfiguration& configuration,
                                 OpenCompletion completion) = 0;
    // Opens the application like openApplication, then waits up to `timeout` seconds for
    // the open to complete: whether it did, successfully. Blocks the calling thread; never
    // called on the main thread.
    virtual bool launchApplication(const std::string& url, const OpenConfiguration& configuration,
                                   double timeout) = 0;
    // open(_:withApplicationAt:configuration:completionHandler:) with one file URL (a
    // document, or a folder for Finder), then waits up to `timeout` seconds for the open to
    // complete: whether the application took the file. Blocks; never on the main thread.
    virtual bool openDocument(const std::string& fileURL, const std::string& applicationURL,
                              const OpenConfiguration& configuration, double timeout) = 0;
    // The application's icon (NSWorkspace.icon(forFile:) of its location) as a square bitmap
    // of `pixels` per side; nothing when it is not installed.
    virtual std::shared_ptr<const Image> applicationIcon(const std::string& bundleIdentifier,
                                                         int pixels) = 0;
    // NSWorkspace.open(URL): false when the text is not a URL or nothing opened it.
    virtual bool openURL(const std::string& url) = 0;
    // The agent's own process identifier (ProcessInfo.processIdentifier).
    virtual Pid ownPid() = 0;
    // Bundle.main.
    virtual BundleInfo mainBundle() = 0;
    // Bundle(path:)?.bundleIdentifier: nothing when no bundle or no identifier is there.
    virtual std::optional<std::string> bundleIdentifier(const std::string& bundlePath) = 0;
};

}  // namespace vistrel
