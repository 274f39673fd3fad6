#pragma once

#include <functional>
#include <ostream>
#include <string_view>

namespace vistrel {

// The agent's entry point once the platform is installed: "--diagnose" anywhere among the
// arguments prints the diagnostics text and ends the process without an application;
// otherwise the application is made and runs.
struct AgentMain {
    static constexpr std::string_view diagnoseArgument = "--diagnose";

    // `runApplication` makes the application object and runs its event loop; the answer is
    // the process's exit status.
    static int run(std::ostream& out, const std::function<int()>& runApplication);
};

}  // namespace vistrel
