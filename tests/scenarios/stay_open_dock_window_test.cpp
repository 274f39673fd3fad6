// On macOS 27 a full-screen Dock window on layer 20 can stay while Mission Control is
// closed; the agent must not take it for Mission Control.
#include <gtest/gtest.h>

#include "engine_scenario.h"
#include "tracking/mission_control_detector.h"

namespace vistrel::testing {
namespace {

class StayOpenDockWindowTest : public EngineScenario {
  protected:
    StayOpenDockWindowTest() { desktop.systemInfo().version = {27, 0, 0}; }

    bool fullScreenDockWindowListed() {
        const auto list = desktop.windowServer().windowList(WindowListOption::onScreenOnly);
        for (const WindowDescription& window : *list) {
            if (window.ownerName == "Dock" && window.layer == 20 &&
                window.bounds == simPrimaryScreen) {
                return true;
            }
        }
        return false;
    }
};

TEST_F(StayOpenDockWindowTest, FullScreenLayer20DockWindowNeverOpensTheSession) {
    desktop.dock().open();
    desktop.dock().close();
    ASSERT_TRUE(fullScreenDockWindowListed());
    desktop.executor().advance(10);
    EXPECT_FALSE(engine->active());
    EXPECT_EQ(logged("mission control appeared"), 0u);
    EXPECT_FALSE(desktop.eventTap().enabled());
}

TEST_F(StayOpenDockWindowTest, SessionEndsWhenMissionControlClosesThoughTheWindowStays) {
    openMissionControl();
    ASSERT_TRUE(engine->active());
    closeMissionControl();
    ASSERT_TRUE(fullScreenDockWindowListed());
    EXPECT_FALSE(engine->active());
    EXPECT_EQ(logged("mission control went away"), 1u);
    desktop.executor().advance(5);
    EXPECT_FALSE(engine->active());
    EXPECT_EQ(logged("mission control appeared"), 1u);
}

}  // namespace
}  // namespace vistrel::testing
