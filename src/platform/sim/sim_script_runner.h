#pragma once

#include <string>
#include <vector>

#include "platform/script_runner.h"

namespace vistrel {

class SimDesktop;

// osascript on the simulated desktop. It knows one script, the one asking Finder for its
// windows (as insidegui/PlayAlways, FinderHelper.swift, asks Finder for the target of its
// front window), and answers it from the desktop's Finder windows as osascript prints the
// list the script builds: a line per window with a folder, its name, its bounds (left, top,
// right, bottom) and the folder's POSIX path, separated by tabs. Finder answers only with the
// user's consent (without it an Apple event fails with errAEEventNotPermitted, -1743, in
// Apple's documentation of the Automation consent, and osascript ends in error), or never
// answers at all.
class SimScriptRunner : public ScriptRunner {
  public:
    explicit SimScriptRunner(SimDesktop& desktop) : desktop_(desktop) {}

    std::optional<std::string> run(const std::string& script, double timeout) override;

    // Whether the user let Vistrel control Finder.
    bool automationAllowed = true;
    // Every run takes its whole time-out and ends with nothing.
    bool hangs = false;
    // Every script run, in order.
    std::vector<std::string> scripts;

  private:
    std::string finderWindows() const;

    SimDesktop& desktop_;
};

}  // namespace vistrel
