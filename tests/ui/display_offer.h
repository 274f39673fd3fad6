#pragma once

#include <string>

#include "layouts/display_follower.h"
#include "layouts/display_match.h"
#include "layouts/layout_store.h"
#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_scene.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "status_menu_fixture.h"
#include "windows/screens.h"

namespace vistrel::testing {

// A laptop that comes back to its desk: a layout named `name` is saved with Notes on the left
// half of a Studio Display, which is then unplugged and plugged in again, each change left to
// settle, so that the follower (started by the caller) offers the layout.
class DeskComeback {
  public:
    static constexpr std::uint32_t studio = 2;
    static constexpr Size studioSize{1920, 1080};
    static constexpr double settled = 5;

    explicit DeskComeback(SimDesktop& desktop) : desktop_(desktop) {}

    void play(const std::string& name) {
        change([this] { desktop_.plugDisplay(studio, studioSize); });
        const std::string display = Screens::snapshot().back().id;
        SavedLayout desk{UUID::random(),
                         name,
                         {{"com.apple.Notes", "Notes", "Notes", UnitRect{0, 0, 0.5, 1}, display}}};
        desk.displays = DisplayMatch::displaysOf(Screens::snapshot());
        LayoutStore::add(*Shared::store(), desk);
        change([this] { desktop_.unplugDisplay(studio); });
        change([this] { desktop_.plugDisplay(studio, studioSize); });
    }
    // Makes a change to the displays and lets it settle.
    template <typename Change>
    void change(Change change) {
        change();
        desktop_.executor().advance(settled);
    }

  private:
    SimDesktop& desktop_;
};

// The status menu on the default scene with layouts on, the follower watching the displays.
class FollowingStatusMenuTest : public StatusMenuTest {
  protected:
    void SetUp() override {
        populateDefaultScene(desktop);
        Shared::store()->set(std::string(PreferenceKey::layoutsEnabled), true);
        StatusMenuTest::SetUp();
        DisplayFollower::shared().start();
    }
    void TearDown() override { DisplayFollower::shared().stop(); }

    DeskComeback desk{desktop};
};

}  // namespace vistrel::testing
