#pragma once

#include <string>
#include <vector>

#include "platform/sim/sim_desktop.h"
#include "support/sim_test.h"

namespace vistrel::testing {

// A simulated desktop with helpers to put applications and windows on it.
class WindowTest : public SimTest {
  protected:
    Pid addApp(const std::string& bundle, const std::string& name,
               ActivationPolicy policy = ActivationPolicy::regular, Pid pid = 0) {
        SimApplication app;
        app.pid = pid;
        app.bundleIdentifier = bundle;
        app.name = name;
        app.activationPolicy = policy;
        return desktop.addApplication(app);
    }

    SimWindowId addWindow(Pid pid, const std::string& title, Rect frame) {
        SimWindow window;
        window.title = title;
        window.frame = frame;
        return desktop.addWindow(pid, window);
    }

    SimWindow& window(SimWindowId id) { return *desktop.window(id); }
    AXElement element(SimWindowId id) { return desktop.accessibility().windowElement(id); }
    std::vector<std::string> log() { return desktop.systemLog().messages(); }
    double elapsedSince(double start) { return desktop.clock().now() - start; }
};

}  // namespace vistrel::testing
