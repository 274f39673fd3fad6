#pragma once

#include <memory>
#include <string>

#include "platform/sim/sim_desktop.h"
#include "support/sim_test.h"
#include "ui/kit/dfkit_view.h"
#include "ui/menu/status_menu_controller.h"

namespace vistrel::testing {

// A desktop with the agent's status item in the menu bar.
class StatusMenuTest : public SimTest {
  protected:
    void SetUp() override { controller = StatusMenuController::make(); }

    SimStatusItem& item() { return *desktop.statusBar().items().front(); }
    SimKeyPanel& panel() { return *desktop.panels().panels().front(); }
    bool panelOpen() { return !desktop.panels().panels().empty() && panel().isVisible(); }
    // Clicks the status item and lets the user's pause go by.
    void clickItem(double pauseAfter = 1) {
        item().click();
        desktop.executor().advance(pauseAfter);
    }
    void open() {
        if (!panelOpen()) clickItem();
    }
    // The open panel's view with an accessibility element of this label.
    DFKitView* viewLabelled(const std::string& label) {
        DFKitStatusPanel* p = controller->panel();
        for (const auto& row : p->content().rows()) {
            if (DFKitView* found = find(*row, label)) return found;
        }
        return nullptr;
    }
    // Clicks the middle of the view labelled so, as the user would.
    void clickLabelled(const std::string& label) {
        DFKitView* view = viewLabelled(label);
        ASSERT_NE(view, nullptr) << label;
        panel().click(view->frameInRoot().mid());
    }

    std::shared_ptr<StatusMenuController> controller;

  private:
    static DFKitView* find(DFKitView& view, const std::string& label) {
        if (auto node = view.accessibilityNode(); node && node->label == label) return &view;
        for (DFKitView* child : view.subviews()) {
            if (DFKitView* found = find(*child, label)) return found;
        }
        return nullptr;
    }
};

}  // namespace vistrel::testing
