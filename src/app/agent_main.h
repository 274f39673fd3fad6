#pragma once

#include <functional>
#include <ostream>
#include <string_view>

#include "app/layout_command_line.h"
#include "tracking/mission_control_capture.h"

namespace vistrel {

// The agent's entry point once the platform is installed. One of four things runs, in this
// order of precedence: "--diagnose" anywhere among the arguments prints the diagnostics
// text and ends the process without an application; "--capture-mission-control" runs the
// capture tool; a layout command ("--apply-layout", "--save-layout", "--list-layouts") asks
// the running agent; otherwise the application is made and runs. Nothing before this
// decision may touch AppKit, so that the first three never make an application object.
struct AgentMain {
    static constexpr std::string_view diagnoseArgument = "--diagnose";

    struct Runners {
        // Runs the capture tool; the answer is the process's exit status.
        std::function<int(const MissionControlCapture::Request&)> capture;
        // Runs a layout command; the answer is the process's exit status.
        std::function<int(const LayoutCommandLine::Invocation&)> layoutCommand;
        // Makes the application object and runs its event loop; the answer is the process's
        // exit status.
        std::function<int()> application;
    };

    static int run(std::ostream& out, const Runners& runners);
};

}  // namespace vistrel
