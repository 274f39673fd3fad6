#include "tracking/mission_control_host.h"

#include <gtest/gtest.h>

#include "support/sim_test.h"

namespace vistrel {
namespace {

TEST(MissionControlHost, UpToMacOS26TheDockHoldsMissionControl) {
    EXPECT_EQ(MissionControlHosts::forVersion({14, 7, 1}), MissionControlHost::dock);
    EXPECT_EQ(MissionControlHosts::forVersion({26, 4, 0}), MissionControlHost::dock);
}

TEST(MissionControlHost, FromMacOS27WindowManagerHoldsIt) {
    EXPECT_EQ(MissionControlHosts::forVersion({27, 0, 0}), MissionControlHost::windowManager);
    EXPECT_EQ(MissionControlHosts::forVersion({28, 1, 0}), MissionControlHost::windowManager);
}

class MissionControlHostLineTest : public testing::SimTest {};

TEST_F(MissionControlHostLineTest, StartLineNamesTheDockUpToMacOS26) {
    desktop.systemInfo().version = {26, 1, 0};
    MissionControlHosts::logWhereRead();
    EXPECT_EQ(desktop.systemLog().count("mission control: reading the Dock"), 1u);
    EXPECT_EQ(desktop.systemLog().count("mission control: reading WindowManager"), 0u);
}

TEST_F(MissionControlHostLineTest, StartLineNamesWindowManagerFromMacOS27) {
    desktop.systemInfo().version = {27, 0, 0};
    MissionControlHosts::logWhereRead();
    EXPECT_EQ(desktop.systemLog().count("mission control: reading WindowManager"), 1u);
    EXPECT_EQ(desktop.systemLog().count("mission control: reading the Dock"), 0u);
}

}  // namespace
}  // namespace vistrel
