#include "thumbnail_printout.h"

#include <string>

#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_scene.h"
#include "tracking/ax.h"
#include "tracking/mission_control_host.h"
#include "tracking/thumbnail_reader.h"

namespace vistrel {

namespace {

std::string windowUnder(SimDesktop& desktop, Point point) {
    const auto hit = AX::windowAt(point);
    if (!hit) return "no window";
    const SimApplication* app = desktop.application(hit->pid);
    return (app ? app->name : "?") + " — \"" + AX::string(hit->window, "AXTitle").value_or("") +
           "\"";
}

}  // namespace

void printThumbnails(SimDesktop& desktop, std::ostream& out) {
    ThumbnailReader reader;
    const auto frames = reader.frames();
    const bool windowManager = MissionControlHosts::running() == MissionControlHost::windowManager;
    out << "  thumbnail reader: " << frames.size() << " thumbnails from "
        << (windowManager ? "WindowManager" : "the Dock") << " (pid " << reader.dockPid() << ")\n";
    for (const Rect& frame : frames) {
        out << "    " << describeRect(frame) << "  shows " << windowUnder(desktop, frame.mid())
            << "\n";
    }
}

}  // namespace vistrel
