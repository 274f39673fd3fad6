#pragma once

// The shelf's view drawn on the default scene, for the tests of what it draws.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "platform/display_list.h"
#include "platform/platform.h"
#include "platform/sim/sim_scene.h"
#include "platform/sim/sim_window_host.h"
#include "support/sim_test.h"
#include "views/app_look.h"
#include "views/layouts_ui.h"
#include "views/shelf_style.h"
#include "views/shelf_view.h"

namespace vistrel::testing {

using Item = ShelfLayout::Item;

inline const std::string safari = "com.apple.Safari";
inline const std::string notes = "com.apple.Notes";
// The default scene's screen without its menu bar and Dock.
inline constexpr Rect area{0, 25, 1440, 805};

inline SavedLayout layoutOf(std::string name, std::vector<SavedLayout::Window> windows) {
    return {{}, std::move(name), std::move(windows), 0};
}

inline SavedLayout::Window window(const std::string& bundleID, UnitRect rect) {
    return {bundleID, "", "", rect, std::nullopt};
}

// Safari on the left half, Notes on the right.
inline SavedLayout sideBySide() {
    return layoutOf("Safari · Notes",
                    {window(safari, {0, 0, 0.5, 1}), window(notes, {0.5, 0, 0.5, 1})});
}

inline Rect boundsOf(const Path& path) {
    return path.controlBounds();
}

inline bool holds(Rect outer, Rect inner) {
    constexpr double slack = 1e-9;
    return inner.minX() >= outer.minX() - slack && inner.maxX() <= outer.maxX() + slack &&
           inner.minY() >= outer.minY() - slack && inner.maxY() <= outer.maxY() + slack;
}

class ShelfViewTest : public SimTest {
  protected:
    void SetUp() override { populateDefaultScene(desktop); }

    ShelfState stateWith(std::vector<SavedLayout> saved) {
        ShelfState state;
        state.saved = std::move(saved);
        state.templates = LayoutTemplate::all();
        return state;
    }

    // Draws the state on a shelf built for it, as the controller shows it unfolded.
    std::shared_ptr<const DisplayList> draw(const ShelfState& state) {
        layout = ShelfLayout::make(static_cast<int>(state.saved.size()),
                                   static_cast<int>(state.templates.size()), area);
        origin = state.folded ? layout.pill.origin() : layout.frame.origin();
        view.configure(layout, state, origin);
        RecordingCanvas canvas(true);
        view.draw(canvas);
        return canvas.finish();
    }

    // A cell's rectangles in the view's space.
    ShelfLayout::Cell local(const Item& item) const {
        for (auto cell : layout.cells) {
            if (cell.item != item) continue;
            cell.rect = cell.rect.offsetBy(-origin.x, -origin.y);
            cell.screen = cell.screen.offsetBy(-origin.x, -origin.y);
            return cell;
        }
        ADD_FAILURE() << "no such cell";
        return {};
    }

    static std::vector<DisplayList::Fill> fillsIn(const DisplayList& list, Color color) {
        std::vector<DisplayList::Fill> found;
        for (const auto& fill : list.all<DisplayList::Fill>()) {
            if (fill.color == color) found.push_back(fill);
        }
        return found;
    }

    static std::vector<DisplayList::Text> textsOf(const DisplayList& list, const std::string& s) {
        std::vector<DisplayList::Text> found;
        for (const auto& text : list.all<DisplayList::Text>()) {
            if (text.run.text == s) found.push_back(text);
        }
        return found;
    }

    static Color windowFill(const std::string& bundleID) {
        return AppLook::color(bundleID).withAlpha(ShelfStyle::windowFillAlpha);
    }

    // The position of the first fill in a colour among all operations.
    static std::ptrdiff_t orderOf(const DisplayList& list, Color color) {
        const auto& ops = list.operations();
        const auto found = std::find_if(ops.begin(), ops.end(), [&](const auto& op) {
            const auto* fill = std::get_if<DisplayList::Fill>(&op);
            return fill != nullptr && fill->color == color;
        });
        return found - ops.begin();
    }

    ShelfView view;
    ShelfLayout layout;
    Point origin;
};

}  // namespace vistrel::testing
