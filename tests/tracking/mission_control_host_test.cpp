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

TEST(MissionControlHost, TheLineNamesTheHostFound) {
    EXPECT_EQ(MissionControlHosts::startLine(MissionControlHost::dock),
              "mission control: reading the Dock");
    EXPECT_EQ(MissionControlHosts::startLine(MissionControlHost::windowManager),
              "mission control: reading WindowManager");
}

}  // namespace
}  // namespace vistrel
