#include "platform/sim/sim_scene.h"

#include <gtest/gtest.h>

#include <set>

#include "support/sim_test.h"

namespace vistrel {
namespace {

class SimSceneTest : public testing::SimTest {
  protected:
    SimSceneTest() { populateDefaultScene(desktop); }
};

TEST_F(SimSceneTest, RunsTheDockAndFiveEverydayApplications) {
    std::set<std::string> names;
    for (const auto& app : desktop.workspace().runningApplications()) {
        names.insert(app.localizedName.value_or(""));
    }
    EXPECT_EQ(names,
              (std::set<std::string>{"Dock", "Safari", "Notes", "Terminal", "Mail", "Finder"}));
}

TEST_F(SimSceneTest, SixWindowsLieBetweenTheMenuBarAndTheDock) {
    ASSERT_EQ(desktop.windows().size(), 6u);
    const Rect usable{0, simMenuBarHeight, simPrimaryScreen.width,
                      simPrimaryScreen.height - simMenuBarHeight - simDockHeight};
    for (const SimWindow& window : desktop.windows()) {
        EXPECT_TRUE(usable.contains(window.frame)) << window.title;
        EXPECT_TRUE(desktop.isOnScreen(window)) << window.title;
    }
}

TEST_F(SimSceneTest, SafariIsInFrontAndMissionControlClosed) {
    EXPECT_EQ(desktop.application(desktop.windows().front().pid)->name, "Safari");
    EXPECT_TRUE(desktop.dock().isRunning());
    EXPECT_FALSE(desktop.dock().isOpen());
}

TEST_F(SimSceneTest, EveryApplicationIsInstalled) {
    for (const auto& app : desktop.applications()) {
        if (app.bundleIdentifier == "com.apple.dock") continue;
        EXPECT_TRUE(desktop.workspace().applicationURL(app.bundleIdentifier)) << app.name;
    }
}

}  // namespace
}  // namespace vistrel
