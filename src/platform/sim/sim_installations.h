#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/color.h"
#include "platform/process.h"
#include "platform/sim/sim_model.h"

namespace vistrel {

class SimDesktop;

// An application on the simulated disk: what launching it brings up, and when.
struct SimInstalledApplication {
    std::string bundleIdentifier;
    std::string name;
    std::string path;
    Color iconColor;                 // the one colour its icon is painted in
    std::vector<SimWindow> windows;  // back to front, as they reopen after a launch
    double launchDelay = 0.6;        // seconds from the open until the application runs
    double windowDelay = 0.4;        // then until its windows appear
};

// The applications installed on the simulated desktop and the launches under way. A launch
// brings up its application and then its windows at fixed virtual times; whoever looks at
// the desktop after such a time (a queue that slept, the executor moving time on) sees them.
class SimInstallations {
  public:
    explicit SimInstallations(SimDesktop& desktop) : desktop_(desktop) {}

    // Installs an application, replacing one with the same bundle identifier.
    void install(SimInstalledApplication application);
    const SimInstalledApplication* find(const std::string& bundleIdentifier) const;
    // The application installed at `path`, if any.
    const SimInstalledApplication* at(const std::string& path) const;

    // Starts launching the application installed at `path`, unless it is running or already
    // launching: when it will run (or runs already). Nothing when nothing is installed there.
    std::optional<double> launch(const std::string& path);
    // Opens a file's window in the application installed at `path`, launching it first when
    // it is not running: when the application runs (the window comes up `windowDelay`
    // later). Nothing when nothing is installed there.
    std::optional<double> openDocument(const std::string& path, SimWindow window);
    // Brings up every application and window whose time has come.
    void settle();
    // How many launches were started.
    int launches() const { return launches_; }

  private:
    struct Pending {
        std::string bundleIdentifier;
        double runsAt = 0;
        Pid pid = 0;  // once running
        bool done = false;
        bool reopens = true;                    // a launch brings the application's windows back
        std::vector<SimWindow> documents = {};  // windows of files opened in it
    };
    void settleLater(double seconds);
    std::optional<Pid> running(const std::string& bundleIdentifier) const;

    SimDesktop& desktop_;
    std::vector<SimInstalledApplication> installed_;
    std::vector<Pending> pending_;
    int launches_ = 0;
};

}  // namespace vistrel
