#include <ostream>
#include <string>

#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_scene.h"
#include "sim_command.h"
#include "thumbnail_printout.h"
#include "tracking/mission_control_detector.h"

namespace vistrel {

namespace {

constexpr std::uint16_t escapeKeyCode = SimDock::escapeKeyCode;

// Fires the detector's next poll and prints what it saw and when it polls again.
void pollAndPrint(SimDesktop& desktop, double started, const bool& verdict, std::ostream& out) {
    desktop.executor().advanceToNextEvent();
    const double next = desktop.executor().timers().back().interval;
    out << "  +" << desktop.clock().now() - started << " s  detector: mission control "
        << (verdict ? "open" : "closed") << ", next poll in " << next << " s\n";
}

// The session on a system of the given major version: up to 26 Mission Control lives in
// the Dock, from 27 in WindowManager.
int showSession(std::ostream& out, int major) {
    SimDesktop desktop;
    ScopedPlatform installed(desktop);
    desktop.systemInfo().version.major = major;
    populateDefaultScene(desktop);
    out << "== mission control on the default scene, macOS " << major << " ==\n";

    bool verdict = false;
    MissionControlDetector detector;
    detector.onTick = [&verdict](bool open) { verdict = open; };
    const double started = desktop.clock().now();
    detector.schedule(MissionControlDetector::startDelay);
    pollAndPrint(desktop, started, verdict, out);

    out << "  (Mission Control opens)\n";
    desktop.dock().open();
    pollAndPrint(desktop, started, verdict, out);
    printThumbnails(desktop, out);

    out << "  (Escape pressed)\n";
    platform().windowServer.postKey(escapeKeyCode, true);
    platform().windowServer.postKey(escapeKeyCode, false);
    pollAndPrint(desktop, started, verdict, out);
    out << "\n";
    return 0;
}

constexpr int dockGeneration = 26;
constexpr int windowManagerGeneration = 27;

int runMissionControl(SimCommandContext& context) {
    return showSession(context.out, dockGeneration) |
           showSession(context.out, windowManagerGeneration);
}

}  // namespace

VISTREL_SIM_COMMAND(
    "mission-control",
    "opens Mission Control on macOS 26 and 27, prints the verdicts and the thumbnails read", 20,
    runMissionControl);

}  // namespace vistrel
