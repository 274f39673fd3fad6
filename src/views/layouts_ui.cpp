#include "views/layouts_ui.h"

#include "platform/platform.h"

namespace vistrel {

std::unique_ptr<AgentWindow> LayoutsUI::makeWindow(int level) {
    auto window = platform().windowHost.makeWindow(WindowDeferral::immediate);
    window->setLevel(level);
    window->setCollectionBehavior(WindowCollectionBehavior::agentOverlay);
    window->setIgnoresMouseEvents(true);
    return window;
}

}  // namespace vistrel
