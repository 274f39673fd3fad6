#include "app/agent_main.h"

#include <algorithm>
#include <string>

#include "diagnostics/diagnostics.h"
#include "platform/platform.h"

namespace vistrel {

int AgentMain::run(std::ostream& out, const Runners& runners) {
    const auto arguments = platform().launch.arguments();
    if (std::find(arguments.begin(), arguments.end(), diagnoseArgument) != arguments.end()) {
        // Exactly the text: scripts read it, so no line feed is added.
        out << Diagnostics::text() << std::flush;
        return 0;
    }
    if (auto request = MissionControlCapture::requested(arguments)) {
        return runners.capture(*request);
    }
    if (auto invocation = LayoutCommandLine::requested(arguments)) {
        return runners.layoutCommand(*invocation);
    }
    return runners.application();
}

}  // namespace vistrel
