#include "views/layouts_ui.h"

#include "platform/platform.h"
#include "views/turn_deferred_window.h"

namespace vistrel {

std::unique_ptr<AgentWindow> LayoutsUI::makeWindow(int level) {
    auto window = std::make_unique<TurnDeferredWindow>(
        platform().windowHost.makeWindow(WindowDeferral::immediate));
    window->setLevel(level);
    window->setCollectionBehavior(WindowCollectionBehavior::agentOverlay);
    window->setIgnoresMouseEvents(true);
    return window;
}

}  // namespace vistrel
