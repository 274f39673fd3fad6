#pragma once

#include <memory>
#include <string>

#include "layouts/layout_store.h"
#include "platform/sim/sim_scene.h"
#include "session/layouts_controller.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "support/sim_test.h"

namespace vistrel::testing {

// The layouts controller over the default scene, Mission Control open and the pointer
// resting in the middle of the screen.
class LayoutsControllerTest : public SimTest {
  protected:
    LayoutsControllerTest() {
        populateDefaultScene(desktop);
        desktop.dock().open();
        desktop.eventTap().setPointer({720, 450});
    }

    void open() { controller->missionControlOpened(); }
    void settle() { desktop.executor().runUntilIdle(); }

    void setPreference(std::string_view key, DefaultsValue value) {
        Shared::store()->set(std::string(key), value);
    }

    // Stores a layout of one window of the application and returns it.
    SavedLayout storeLayout(const std::string& name, const std::string& bundleID) {
        SavedLayout layout;
        layout.id = UUID::random();
        layout.name = name;
        layout.windows.push_back({bundleID, name, "", {0, 0, 0.5, 1}, std::nullopt});
        LayoutStore::add(*Shared::store(), layout);
        return layout;
    }

    EngineLayouts::Pick pickOf(const std::string& title) {
        for (const SimWindow& window : desktop.windows()) {
            if (window.title != title) continue;
            return {desktop.accessibility().windowElement(window.id), window.pid, window.frame};
        }
        ADD_FAILURE() << "no window titled " << title;
        return {};
    }

    const ShelfLayout::Cell& cellFor(ShelfLayout::Item item) {
        for (const auto& cell : controller->layout()->cells) {
            if (cell.item == item) return cell;
        }
        ADD_FAILURE() << "no cell";
        return controller->layout()->cells.front();
    }

    // A point at fractions of a template cell's miniature screen.
    Point inTemplate(int templateIndex, double fractionX, double fractionY) {
        const Rect screen = cellFor(ShelfLayout::Item::layoutTemplate(templateIndex)).screen;
        return {screen.minX() + screen.width * fractionX,
                screen.minY() + screen.height * fractionY};
    }

    // Presses on a window's thumbnail and drags it to the point.
    void drag(const std::string& title, Point to) {
        controller->recordPress(pickOf(title), {400, 300});
        controller->mouseDragged(to);
    }

    void unfold() {
        controller->pointerMoved(controller->layout()->pill.mid());
        ASSERT_TRUE(controller->unfolded());
    }

    void click(ShelfLayout::Item item, std::uint64_t flags = 0) {
        controller->shelfClick(cellFor(item).rect.mid(), flags);
    }

    std::size_t logged(std::string_view message) { return desktop.systemLog().count(message); }
    std::string toast() const { return controller->toast().view().message(); }

    std::unique_ptr<LayoutsController> controller = std::make_unique<LayoutsController>();
};

}  // namespace vistrel::testing
