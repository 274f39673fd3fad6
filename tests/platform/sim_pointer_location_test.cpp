#include <gtest/gtest.h>

#include "platform/sim/sim_desktop.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

class SimPointerLocationTest : public testing::SimTest {
  protected:
    Point location() { return desktop.platform().windowServer.pointerLocation(); }
};

TEST_F(SimPointerLocationTest, ThePointerFollowsDeliveredMouseEvents) {
    desktop.eventTap().deliver(SimInput::mouseMoved({120, 340}));
    EXPECT_EQ(location(), (Point{120, 340}));

    desktop.eventTap().deliver(SimInput::mouseDragged({130, 350}));
    EXPECT_EQ(location(), (Point{130, 350}));

    desktop.eventTap().deliver(SimInput::mouseDown({140, 360}));
    EXPECT_EQ(location(), (Point{140, 360}));
}

TEST_F(SimPointerLocationTest, KeyEventsLeaveThePointerWhereItWas) {
    desktop.eventTap().deliver(SimInput::mouseMoved({120, 340}));

    desktop.eventTap().deliver(SimInput::keyDown(53, 0));

    EXPECT_EQ(location(), (Point{120, 340}));
}

TEST_F(SimPointerLocationTest, APointerPutSomewhereWithoutAnEventIsWhereItIs) {
    desktop.eventTap().setPointer({700, 450});

    EXPECT_EQ(location(), (Point{700, 450}));
}

}  // namespace
}  // namespace vistrel
