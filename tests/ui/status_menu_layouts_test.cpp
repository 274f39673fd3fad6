#include <gtest/gtest.h>

#include "layouts/layout_store.h"
#include "platform/sim/sim_scene.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "status_menu_fixture.h"

namespace vistrel::testing {
namespace {

constexpr double windowWork = 3;  // long enough for the layouts queue to finish

class StatusMenuLayoutsTest : public StatusMenuTest {
  protected:
    void SetUp() override {
        Shared::store()->set(std::string(PreferenceKey::layoutsEnabled), true);
        StatusMenuTest::SetUp();
    }
    std::size_t saved() { return LayoutStore::load(*Shared::store()).size(); }
};

TEST_F(StatusMenuLayoutsTest, ALayoutRowLogsAndRestoresThatLayout) {
    populateDefaultScene(desktop);
    LayoutStore::add(*Shared::store(),
                     {{}, "Notes", {{"com.apple.Notes", "", "", {0, 0, 1, 1}, std::nullopt}}, 0});
    open();
    clickLabelled("Notes");
    desktop.executor().advance(windowWork);
    EXPECT_FALSE(panelOpen());
    EXPECT_EQ(desktop.systemLog().count("layouts: restoring \"Notes\" from the menu"), 1u);
    EXPECT_EQ(desktop.systemLog().count("layouts: restored \"Notes\", 1 of 1 windows"), 1u);
}

TEST_F(StatusMenuLayoutsTest, SaveCurrentLayoutAddsTheOpenWindowsAndLogs) {
    populateDefaultScene(desktop);
    open();
    clickLabelled("Save Current Layout");
    desktop.executor().advance(windowWork);
    const auto layouts = LayoutStore::load(*Shared::store());
    ASSERT_EQ(layouts.size(), 1u);
    EXPECT_EQ(desktop.systemLog().count("layouts: saved the current windows as \"" +
                                        layouts[0].name + "\" from the menu"),
              1u);
}

TEST_F(StatusMenuLayoutsTest, SaveCurrentLayoutWithNoWindowsIsSilent) {
    open();
    const std::size_t lines = desktop.systemLog().lines().size();
    clickLabelled("Save Current Layout");
    desktop.executor().advance(windowWork);
    EXPECT_EQ(saved(), 0u);
    EXPECT_EQ(desktop.systemLog().lines().size(), lines);
}

}  // namespace
}  // namespace vistrel::testing
