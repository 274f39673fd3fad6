#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

namespace vistrel {

// Records how a real Mac shows Mission Control, so the simulator can learn it: started with
// "--capture-mission-control FILE" (and "--with-titles" to keep titles), the agent waits up
// to a minute for Mission Control to open and for its thumbnails to stop moving (two equal
// reads a tenth of a second apart, a second at most), then writes one JSON file with the
// system's version, the displays with their identifiers, the host whose tree held Mission
// Control, the Dock's and WindowManager's accessibility subtrees under their Mission Control
// groups (display groups with their identifiers), the thumbnails as the agent reads them, the
// hit-test's answer at each thumbnail's centre, the regular applications' windows, and the
// on-screen window list (no window names). The waiting runs as delayed work on a queue of its own,
// a bounded number of times, so no thread blocks and no clock change stretches it.
namespace MissionControlCapture {

inline constexpr std::string_view flag = "--capture-mission-control";
inline constexpr std::string_view titlesFlag = "--with-titles";
inline constexpr std::string_view queueLabel = "com.quillmarsh.vistrel.capture";
inline constexpr double waitLimit = 60;
inline constexpr double pollInterval = 0.25;
// Thumbnails count as still when two reads this far apart agree; after settleLimit they are
// written as they are.
inline constexpr double settleInterval = 0.1;
inline constexpr double settleLimit = 1;
// A runaway tree is cut off rather than walked for ever.
inline constexpr int deepestLevel = 8;
inline constexpr std::size_t mostNodes = 4000;

struct Request {
    std::string path;  // empty when the flag came without a file
    bool withTitles = false;
};

enum class Outcome { written, neverOpened, notWritten, noFile, notTrusted };

// The capture asked for on the command line, if any.
std::optional<Request> requested(const std::vector<std::string>& arguments);

// The displays as the screen list tells them, primary first: each one's number
// (NSScreenNumber) and UUID, and its frame and visible frame in AppKit's coordinates. Main
// thread only, as the screen list is.
nlohmann::json displays();

// One look at Mission Control as it is now, with the displays read on the main thread.
nlohmann::json snapshot(bool withTitles, nlohmann::json displays);

// Waits for Mission Control, writes the file, and calls `done` on the main queue.
void start(const Request& request, std::function<void(Outcome)> done);

// What to tell the user about an outcome.
std::string message(Outcome outcome, const Request& request);

}  // namespace MissionControlCapture

}  // namespace vistrel
