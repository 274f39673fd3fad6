#include "layouts_scenario.h"

#include <gtest/gtest.h>

#include "windows/screens.h"

namespace vistrel::testing {

void LayoutsScenario::unfoldShelf() {
    ASSERT_TRUE(layouts().layout());
    move(layouts().layout()->pill.mid());
    ASSERT_TRUE(layouts().unfolded());
}

void LayoutsScenario::clickCell(ShelfLayout::Item item) {
    for (const auto& cell : layouts().layout()->cells) {
        if (cell.item != item) continue;
        // The click can lay the shelf out anew, so the cell is not read after it starts.
        const Point centre = cell.rect.mid();
        move(centre);
        press(centre);
        release(centre);
        return;
    }
    ADD_FAILURE() << "no such cell on the shelf";
}

void LayoutsScenario::hover(const std::string& title) {
    // A move away first, so that hovering the same thumbnail again looks it up afresh.
    move({1, 1});
    move(inside(thumbOf(title)));
    tick();
    settle();
    ASSERT_TRUE(engine->target()) << "no target over " << title;
}

void LayoutsScenario::clickWindow(const std::string& title) {
    hover(title);
    const Point at = inside(thumbOf(title));
    press(at);
    release(at);
}

Rect LayoutsScenario::usableArea() const {
    return Screens::snapshot().front().visible;
}

bool LayoutsScenario::nothingShown() {
    for (const SimAgentWindow* window : desktop.windowHost().windows()) {
        if (window->isVisible()) return false;
    }
    return true;
}

}  // namespace vistrel::testing
