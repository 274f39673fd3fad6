#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "layout_actions_test.h"
#include "layouts/display_follower.h"
#include "layouts/display_match.h"
#include "layouts/layout_store.h"
#include "layouts/layout_undo.h"
#include "windows/screens.h"

namespace vistrel::testing {

// The default scene on a laptop's built-in display, with a desk's displays to plug in and
// layouts saved on each set, and the follower watching.
class DisplayFollowerTest : public LayoutActionsTest {
  protected:
    static constexpr std::uint32_t studio = 2;
    static constexpr std::uint32_t projector = 3;
    static constexpr Size studioSize{1920, 1080};
    static constexpr Size projectorSize{1280, 800};

    DisplayFollowerTest() { follower().start(); }
    ~DisplayFollowerTest() override { follower().stop(); }

    static DisplayFollower& follower() { return DisplayFollower::shared(); }

    // The displays connected now, as a layout remembers them.
    static std::vector<SavedLayout::Display> displaysNow() {
        return DisplayMatch::displaysOf(Screens::snapshot());
    }

    // Saves a layout on the displays connected now, as if at this moment.
    SavedLayout save(std::string name, std::vector<SavedLayout::Window> windows) {
        SavedLayout layout = layoutOf(std::move(windows), std::move(name));
        layout.created = SavedLayout::dateSinceReference(desktop.clock().now());
        layout.displays = displaysNow();
        LayoutStore::add(*Shared::store(), layout);
        return layout;
    }

    // Plugs or unplugs a display and lets the follower settle.
    void plug(std::uint32_t display, Size size) {
        desktop.plugDisplay(display, size);
        settle();
    }
    void unplug(std::uint32_t display) {
        desktop.unplugDisplay(display);
        settle();
    }
    // Long enough for every stage of a change to arrive and the wait after the last to end.
    void settle() {
        advance(settleAfterAChange);
        run();
    }
    void setFollow(std::string_view mode) {
        setPreference(PreferenceKey::layoutsFollowDisplays, std::string(mode));
    }

    std::optional<std::string> offered() {
        const auto& offer = follower().offer();
        return offer ? std::optional(offer->name) : std::nullopt;
    }

    static constexpr double settleAfterAChange = 5;
};

}  // namespace vistrel::testing
