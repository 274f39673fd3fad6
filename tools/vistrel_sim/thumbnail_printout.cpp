#include "thumbnail_printout.h"

#include <string>
#include <vector>

#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_scene.h"
#include "tracking/ax.h"
#include "tracking/mission_control_host.h"
#include "tracking/thumbnail_reader.h"
#include "tracking/thumbnail_targets.h"

namespace vistrel {

namespace {

// The window the agent would act on over this point, found as its hover queue finds it.
std::string windowUnder(SimDesktop& desktop, const ThumbnailTargets& targets, Pid hostPid,
                        Point point) {
    const auto hit = targets.hovered(point, 0, desktop.ownPid, hostPid);
    if (!hit) return "no window";
    const SimApplication* app = desktop.application(hit->pid);
    return (app ? app->name : "?") + " — \"" + AX::string(hit->window, "AXTitle").value_or("") +
           "\"";
}

}  // namespace

void printThumbnails(SimDesktop& desktop, std::ostream& out) {
    ThumbnailReader reader;
    ThumbnailReader::Read read = reader.read();
    const bool windowManager = read.host == MissionControlHost::windowManager;
    std::vector<Rect> frames;
    for (const MissionControlThumbnail& thumbnail : read.thumbnails)
        frames.push_back(thumbnail.frame);
    ThumbnailTargets targets;
    const MissionControlReading reading = targets.update(0, std::move(read), desktop.ownPid);
    out << "  thumbnail reader: " << frames.size() << " thumbnails from "
        << (windowManager ? "WindowManager" : "the Dock") << " (pid " << reader.dockPid() << "), "
        << reading.mapped << " tied to a window, " << reading.refusals << " refused\n";
    for (const Rect& frame : frames) {
        out << "    " << describeRect(frame) << "  shows "
            << windowUnder(desktop, targets, reader.dockPid(), frame.mid()) << "\n";
    }
}

}  // namespace vistrel
