#pragma once

#include <string>

#include "engine_scenario.h"
#include "session/layouts_controller.h"

namespace vistrel::testing {

// The engine with the Layouts feature over the default scene, driven through the event tap
// as a user would drive it.
class LayoutsScenario : public EngineScenario {
  protected:
    using EngineScenario::EngineScenario;

    LayoutsController& layouts() { return dynamic_cast<LayoutsController&>(engine->layouts()); }

    // Moves the pointer onto the pill so the shelf unfolds.
    void unfoldShelf();
    // Clicks a shelf cell: a press and a release in its middle.
    void clickCell(ShelfLayout::Item item);
    // Hovers a window's thumbnail until the engine has it as its target.
    void hover(const std::string& title);
    // Hovers a window's thumbnail and clicks it.
    void clickWindow(const std::string& title);
    Rect frameOf(const std::string& title) { return desktop.window(windowTitled(title))->frame; }
    Rect usableArea() const;
    // None of the agent's windows is on screen.
    bool nothingShown();
};

}  // namespace vistrel::testing
