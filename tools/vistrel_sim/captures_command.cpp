#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "platform/sim/sim_capture_scene.h"
#include "platform/sim/sim_desktop.h"
#include "sim_command.h"
#include "thumbnail_printout.h"
#include "tracking/mission_control_detector.h"
#include "tracking/mission_control_host.h"
#include "tracking/thumbnail_reader.h"

namespace vistrel {

namespace {

namespace fs = std::filesystem;

// Where the captures replayed by the tests live, from the repository's root.
const fs::path capturesFolder = "tests/captures";

std::vector<fs::path> capturesToShow(const std::vector<std::string>& arguments) {
    std::vector<fs::path> files(arguments.begin(), arguments.end());
    if (!files.empty() || !fs::is_directory(capturesFolder)) return files;
    for (const auto& entry : fs::directory_iterator(capturesFolder)) {
        if (entry.path().extension() == ".json") files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

int showCapture(const fs::path& file, std::ostream& out) {
    std::ifstream in(file);
    std::stringstream text;
    text << in.rdbuf();
    SimDesktop desktop;
    ScopedPlatform installed(desktop);
    std::string error;
    out << "== capture " << file.filename().string() << " ==\n";
    if (!in || !loadCapturedScene(desktop, text.str(), error)) {
        out << "  not loaded: " << (in ? error : "cannot read the file") << "\n\n";
        return 1;
    }
    const OperatingSystemVersion& system = desktop.systemInfo().version;
    const auto host = ThumbnailReader().read().host;
    out << "  macOS " << system.major << "." << system.minor << "." << system.patch << "; "
        << (host ? MissionControlHosts::startLine(*host) : "mission control: no host found")
        << "\n";
    out << "  detector: mission control "
        << (MissionControlDetector::isMissionControlOpen() ? "open" : "closed") << "\n";
    printThumbnails(desktop, out);
    out << "\n";
    return 0;
}

int runCaptures(SimCommandContext& context) {
    int status = 0;
    for (const fs::path& file : capturesToShow(context.arguments))
        status |= showCapture(file, context.out);
    return status;
}

}  // namespace

VISTREL_SIM_COMMAND("captures",
                    "replays captures of real Macs' Mission Control (FILE…, or tests/captures)", 25,
                    runCaptures);

}  // namespace vistrel
