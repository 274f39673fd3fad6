#include "app/agent_main.h"

#include <algorithm>
#include <string>

#include "diagnostics/diagnostics.h"
#include "platform/platform.h"

namespace vistrel {

int AgentMain::run(std::ostream& out, const std::function<int()>& runApplication) {
    const auto arguments = platform().launch.arguments();
    if (std::find(arguments.begin(), arguments.end(), diagnoseArgument) == arguments.end()) {
        return runApplication();
    }
    // Exactly the text: scripts read it, so no line feed is added.
    out << Diagnostics::text() << std::flush;
    return 0;
}

}  // namespace vistrel
