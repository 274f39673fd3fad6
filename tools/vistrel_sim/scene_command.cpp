#include <ostream>

#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_scene.h"
#include "sim_command.h"

namespace vistrel {

namespace {

void printApplications(SimDesktop& desktop, std::ostream& out) {
    out << "applications:\n";
    for (const SimApplication& app : desktop.applications()) {
        out << "  " << app.pid << "  " << app.name << "  (" << app.bundleIdentifier << ")\n";
    }
}

void printWindows(SimDesktop& desktop, std::ostream& out) {
    out << "windows, front to back:\n";
    for (const SimWindow& window : desktop.windows()) {
        out << "  #" << window.id << "  " << desktop.application(window.pid)->name << " — \""
            << window.title << "\"  " << describeRect(window.frame) << "\n";
    }
}

void printScreens(SimDesktop& desktop, std::ostream& out) {
    out << "screens:\n";
    const auto frames = desktop.accessibilityScreenFrames();
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const ScreenDescription& screen = desktop.screens()[i];
        out << "  display " << screen.displayID.value_or(0) << "  "
            << desktop.windowServer().displayUUID(screen.displayID.value_or(0)).value_or("?")
            << "  " << describeRect(frames[i]) << " at " << screen.backingScaleFactor << "x\n";
    }
}

int printScene(SimCommandContext& context) {
    SimDesktop desktop;
    populateDefaultScene(desktop);
    context.out << "== the default scene ==\n";
    printApplications(desktop, context.out);
    printWindows(desktop, context.out);
    printScreens(desktop, context.out);
    context.out << "\n";
    return 0;
}

}  // namespace

VISTREL_SIM_COMMAND("scene", "prints the default scene", 10, printScene);

}  // namespace vistrel
