#include "platform/sim/sim_event_tap_port.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

constexpr std::uint64_t mouseDownOnly = std::uint64_t{1} << 1;

TEST(SimEventTapPort, WithoutATapEveryEventPasses) {
    SimEventTapPort port;
    EXPECT_TRUE(port.deliver(SimInput::mouseDown({1, 1})));
    ASSERT_EQ(port.deliveries().size(), 1u);
    EXPECT_TRUE(port.deliveries()[0].passed);
}

TEST(SimEventTapPort, TapSeesOnlyTheTypesOfItsMaskAndDecidesTheirFate) {
    SimEventTapPort port;
    int seen = 0;
    port.create(EventTapLocation::hid, mouseDownOnly, [&](const InputEvent&) {
        ++seen;
        return false;
    });
    port.addToMainRunLoop();
    port.enable(true);
    EXPECT_FALSE(port.deliver(SimInput::mouseDown({1, 1})));
    EXPECT_TRUE(port.deliver(SimInput::mouseUp({1, 1})));
    EXPECT_EQ(seen, 1);
    EXPECT_FALSE(port.deliveries()[0].passed);
    EXPECT_TRUE(port.deliveries()[1].passed);
}

TEST(SimEventTapPort, DisabledTapStillReceivesTheDisableNotices) {
    SimEventTapPort port;
    int notices = 0;
    port.create(EventTapLocation::hid, mouseDownOnly, [&](const InputEvent&) {
        ++notices;
        return true;
    });
    port.addToMainRunLoop();
    port.enable(true);
    port.disableBySystem();
    EXPECT_TRUE(port.deliver(SimInput::mouseDown({1, 1})));
    port.deliver(SimInput::tapDisabled(EventType::tapDisabledByTimeout));
    EXPECT_EQ(notices, 1);
}

TEST(SimEventTapPort, PassedEventsAreHandedToTheDesktop) {
    SimEventTapPort port;
    std::vector<EventType> reached;
    port.onPassed = [&](const InputEvent& event) { reached.push_back(event.type); };
    port.deliver(SimInput::keyDown(13, 0));
    EXPECT_EQ(reached, std::vector<EventType>{EventType::keyDown});
}

}  // namespace
}  // namespace vistrel
