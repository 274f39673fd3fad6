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

Rect LayoutsUI::toScreen(Rect rect) {
    const auto screens = platform().screens.screens();
    const double primaryHeight = screens.empty() ? 0 : screens.front().frame.height;
    return {rect.x, primaryHeight - rect.maxY(), rect.width, rect.height};
}

}  // namespace vistrel
