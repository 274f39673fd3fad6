#pragma once

#include <optional>
#include <string>

namespace vistrel {

// Runs an AppleScript out of process: /usr/bin/osascript -e SCRIPT through Process, its
// standard output on a Pipe, its end awaited with terminationHandler. Out of process, an
// application that never answers (or the system's question whether Vistrel may control it,
// still on screen) holds up nobody but the waiting queue, and only until the time-out.
class ScriptRunner {
  public:
    virtual ~ScriptRunner() = default;
    // The script's standard output; nothing when it could not start, ended with an error
    // (an application the user has not let Vistrel control answers errAEEventNotPermitted,
    // -1743), or outlasted `timeout` seconds (it is then terminated). Blocks: never called on
    // the main thread.
    virtual std::optional<std::string> run(const std::string& script, double timeout) = 0;
};

}  // namespace vistrel
