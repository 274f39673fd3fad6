#include "tracking/event_tap.h"

#include <gtest/gtest.h>

#include <memory>
#include <string_view>
#include <vector>

#include "base/hotkey.h"
#include "platform/sim/sim_event_tap_port.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

constexpr Point somewhere{640, 360};
constexpr std::uint64_t capsLock = 0x10000;
constexpr std::string_view runningAtHID = "event tap: running at the HID location";
constexpr std::string_view runningAtSession =
    "event tap: HID location refused, running at the session location";

// Records what the tap hands over and consumes what it is told to.
class RecordingDelegate : public EventTapDelegate {
  public:
    void tapMouseMoved(Point location) override { moves.push_back(location); }
    void tapMouseDragged(Point location) override { drags.push_back(location); }
    bool tapMouseDown(Point location, std::uint64_t flags) override {
        downs.push_back(location);
        downFlags.push_back(flags);
        return consumeMouseDown;
    }
    void tapMouseUp(Point location) override { ups.push_back(location); }
    bool tapKeyDown(std::int64_t code, std::uint64_t flags) override {
        keys.push_back({code, flags});
        return consumeKeyDown;
    }
    void tapFlagsChanged(std::uint64_t flags) override { flagChanges.push_back(flags); }

    struct Key {
        std::int64_t code;
        std::uint64_t flags;
    };
    bool consumeMouseDown = false;
    bool consumeKeyDown = false;
    std::vector<Point> moves, drags, downs, ups;
    std::vector<std::uint64_t> downFlags, flagChanges;
    std::vector<Key> keys;
};

class EventTapTest : public testing::SimTest {
  protected:
    EventTapTest() { tap.delegate = delegate; }

    bool deliver(const InputEvent& event) { return desktop.eventTap().deliver(event); }
    std::size_t logged(std::string_view message) { return desktop.systemLog().count(message); }
    SimEventTapPort& port() { return desktop.eventTap(); }

    std::shared_ptr<RecordingDelegate> delegate = std::make_shared<RecordingDelegate>();
    EventTap tap;
};

TEST(EventTapMask, HoldsTheSevenTappedTypes) {
    static_assert(EventTap::eventMask == 0x1C66);
    EXPECT_EQ(eventMaskOf(std::array{EventType::keyDown, EventType::tapDisabledByTimeout}),
              std::uint64_t{1} << 10);
}

TEST_F(EventTapTest, StartTwiceReturnsTrueBothTimesAndCreatesOneTap) {
    EXPECT_TRUE(tap.start());
    EXPECT_TRUE(tap.start());
    EXPECT_EQ(port().creations(), 1);
    EXPECT_EQ(port().mask(), 0x1C66u);
    EXPECT_TRUE(port().enabled());
    EXPECT_TRUE(tap.isRunning());
}

TEST_F(EventTapTest, RunsAtTheHIDLocationWhenTheSystemAllowsIt) {
    EXPECT_TRUE(tap.start());
    EXPECT_EQ(port().location(), EventTapLocation::hid);
    EXPECT_EQ(port().creations(), 1);
    EXPECT_EQ(logged(runningAtHID), 1u);
}

TEST_F(EventTapTest, FallsBackToTheSessionLocationWhenTheHIDLocationIsRefused) {
    port().refusesHIDLocation = true;
    EXPECT_TRUE(tap.start());
    EXPECT_TRUE(tap.isRunning());
    EXPECT_EQ(port().location(), EventTapLocation::session);
    EXPECT_EQ(logged(runningAtSession), 1u);
    EXPECT_EQ(logged(runningAtHID), 0u);
}

TEST_F(EventTapTest, TheTapAtTheSessionLocationStillSwallowsConsumedEvents) {
    port().refusesHIDLocation = true;
    delegate->consumeKeyDown = true;
    ASSERT_TRUE(tap.start());
    EXPECT_FALSE(deliver(SimInput::keyDown(KeyCode::w, ModifierFlag::command)));
    EXPECT_EQ(delegate->keys.size(), 1u);
}

TEST_F(EventTapTest, LogsTheLocationOnlyWhenItChanges) {
    ASSERT_TRUE(tap.start());
    tap.stop();
    ASSERT_TRUE(tap.start());
    EXPECT_EQ(logged(runningAtHID), 1u);
    tap.stop();
    port().refusesHIDLocation = true;
    ASSERT_TRUE(tap.start());
    tap.stop();
    ASSERT_TRUE(tap.start());
    EXPECT_EQ(logged(runningAtSession), 1u);
}

TEST_F(EventTapTest, FailsWhenEveryLocationIsRefused) {
    port().creationFails = true;
    EXPECT_FALSE(tap.start());
    EXPECT_FALSE(port().exists());
    EXPECT_EQ(logged(runningAtHID) + logged(runningAtSession), 0u);
}

TEST_F(EventTapTest, FailedCreationReturnsFalseAndChangesNothing) {
    port().creationFails = true;
    EXPECT_FALSE(tap.start());
    EXPECT_FALSE(tap.isRunning());
    EXPECT_FALSE(port().exists());
    port().creationFails = false;
    EXPECT_TRUE(tap.start());
}

TEST_F(EventTapTest, FailedRunLoopSourceReturnsFalseAndLeavesNoPort) {
    port().sourceFails = true;
    EXPECT_FALSE(tap.start());
    EXPECT_FALSE(tap.isRunning());
    EXPECT_FALSE(port().exists());
}

TEST_F(EventTapTest, PortInvalidatedByTheSystemIsNoLongerRunning) {
    tap.start();
    port().invalidateBySystem();
    EXPECT_FALSE(tap.isRunning());
}

TEST_F(EventTapTest, ConsumedCommandWSwallowsItsKeyUpAndALaterKeyUpPasses) {
    tap.start();
    delegate->consumeKeyDown = true;
    EXPECT_FALSE(deliver(SimInput::keyDown(KeyCode::w, ModifierFlag::command)));
    EXPECT_FALSE(deliver(SimInput::keyUp(KeyCode::w, ModifierFlag::command)));
    EXPECT_TRUE(deliver(SimInput::keyUp(KeyCode::w)));
    ASSERT_EQ(delegate->keys.size(), 1u);
    EXPECT_EQ(delegate->keys[0].code, KeyCode::w);
    EXPECT_EQ(delegate->keys[0].flags, ModifierFlag::command);
}

TEST_F(EventTapTest, TheRepeatsOfAKeptPressAreKeptWithoutActingAgainUntilItsKeyUp) {
    tap.start();
    delegate->consumeKeyDown = true;
    deliver(SimInput::keyDown(KeyCode::w, ModifierFlag::command));
    EXPECT_FALSE(deliver(SimInput::keyDown(KeyCode::w, ModifierFlag::command, true)));
    EXPECT_FALSE(deliver(SimInput::keyDown(KeyCode::w, ModifierFlag::command, true)));
    EXPECT_EQ(delegate->keys.size(), 1u) << "a repeat is part of the press that acted";
    EXPECT_FALSE(deliver(SimInput::keyUp(KeyCode::w)));
    EXPECT_TRUE(deliver(SimInput::keyUp(KeyCode::w)));
}

TEST_F(EventTapTest, TheRepeatsOfAPressThatWentOnGoOnUntouched) {
    tap.start();
    EXPECT_TRUE(deliver(SimInput::keyDown(KeyCode::w, ModifierFlag::command)));
    delegate->consumeKeyDown = true;
    EXPECT_TRUE(deliver(SimInput::keyDown(KeyCode::w, ModifierFlag::command, true)));
    EXPECT_EQ(delegate->keys.size(), 1u) << "only the press is the delegate's to judge";
    EXPECT_TRUE(deliver(SimInput::keyUp(KeyCode::w)));
}

TEST_F(EventTapTest, KeyDownNotConsumedPassesWithItsKeyUp) {
    tap.start();
    EXPECT_TRUE(deliver(SimInput::keyDown(KeyCode::w, ModifierFlag::command)));
    EXPECT_TRUE(deliver(SimInput::keyUp(KeyCode::w)));
}

TEST_F(EventTapTest, SwallowedKeysAreKeptApartByKeyCode) {
    tap.start();
    delegate->consumeKeyDown = true;
    deliver(SimInput::keyDown(KeyCode::w, ModifierFlag::command));
    EXPECT_TRUE(deliver(SimInput::keyUp(KeyCode::m)));
    EXPECT_FALSE(deliver(SimInput::keyUp(KeyCode::w)));
}

TEST_F(EventTapTest, ConsumedMouseDownSwallowsTheMouseUpWithoutReportingIt) {
    tap.start();
    delegate->consumeMouseDown = true;
    EXPECT_FALSE(deliver(SimInput::mouseDown(somewhere, ModifierFlag::option)));
    EXPECT_FALSE(deliver(SimInput::mouseUp(somewhere)));
    EXPECT_TRUE(delegate->ups.empty());
    EXPECT_TRUE(deliver(SimInput::mouseUp(somewhere)));
    ASSERT_EQ(delegate->ups.size(), 1u);
    EXPECT_EQ(delegate->ups[0], somewhere);
    EXPECT_EQ(delegate->downFlags, std::vector<std::uint64_t>{ModifierFlag::option});
}

TEST_F(EventTapTest, MouseDownNotConsumedPassesWithItsMouseUp) {
    tap.start();
    EXPECT_TRUE(deliver(SimInput::mouseDown(somewhere)));
    EXPECT_TRUE(deliver(SimInput::mouseUp(somewhere)));
    EXPECT_EQ(delegate->ups.size(), 1u);
}

TEST_F(EventTapTest, AReleaseMoreThanASecondAfterAKeptClickGoesOnSoNoDragSticks) {
    tap.start();
    delegate->consumeMouseDown = true;
    EXPECT_FALSE(deliver(SimInput::mouseDown(somewhere)));
    desktop.executor().advance(EventTap::releaseLapse + 0.5);
    EXPECT_TRUE(deliver(SimInput::mouseUp(somewhere)));
    EXPECT_EQ(delegate->ups.size(), 1u);
    EXPECT_EQ(logged("event tap: a kept click's release came more than a second late; it goes on"),
              1u);
}

TEST_F(EventTapTest, AReleaseWithinASecondOfAKeptClickIsKept) {
    tap.start();
    delegate->consumeMouseDown = true;
    EXPECT_FALSE(deliver(SimInput::mouseDown(somewhere)));
    desktop.executor().advance(EventTap::releaseLapse - 0.1);
    EXPECT_FALSE(deliver(SimInput::mouseUp(somewhere)));
}

TEST_F(EventTapTest, APressThatGoesOnSettlesAKeptClickWhoseReleaseNeverCame) {
    tap.start();
    delegate->consumeMouseDown = true;
    EXPECT_FALSE(deliver(SimInput::mouseDown(somewhere)));
    // Its release was lost; the next press is Mission Control's, and so is its release.
    delegate->consumeMouseDown = false;
    EXPECT_TRUE(deliver(SimInput::mouseDown(somewhere)));
    EXPECT_TRUE(deliver(SimInput::mouseUp(somewhere)));
}

TEST_F(EventTapTest, MovesDragsAndFlagChangesReachTheDelegateAndPass) {
    tap.start();
    EXPECT_TRUE(deliver(SimInput::mouseMoved({1, 2})));
    EXPECT_TRUE(deliver(SimInput::mouseDragged({3, 4})));
    EXPECT_TRUE(deliver(SimInput::flagsChanged(ModifierFlag::option)));
    EXPECT_EQ(delegate->moves, (std::vector<Point>{Point{1, 2}}));
    EXPECT_EQ(delegate->drags, (std::vector<Point>{Point{3, 4}}));
    EXPECT_EQ(delegate->flagChanges, std::vector<std::uint64_t>{ModifierFlag::option});
}

TEST_F(EventTapTest, DisabledByTimeoutNoticeReEnablesTheTapAndPasses) {
    tap.start();
    port().disableBySystem();
    EXPECT_TRUE(deliver(SimInput::tapDisabled(EventType::tapDisabledByTimeout)));
    EXPECT_TRUE(port().enabled());
    EXPECT_EQ(port().enables(), 2);
}

TEST_F(EventTapTest, ATapDisabledMoreThanFiveTimesInAMinuteIsLoggedOnceWithTheCount) {
    ASSERT_TRUE(tap.start());
    for (int i = 0; i < 8; ++i) {
        deliver(SimInput::tapDisabled(EventType::tapDisabledByTimeout));
        desktop.executor().advance(5);
    }
    EXPECT_EQ(desktop.systemLog().count("event tap: disabled by the system 6 times in a minute"),
              1u);
}

TEST_F(EventTapTest, DisabledByUserInputNoticeReEnablesTheTapAndPasses) {
    tap.start();
    port().disableBySystem();
    EXPECT_TRUE(deliver(SimInput::tapDisabled(EventType::tapDisabledByUserInput)));
    EXPECT_TRUE(port().enabled());
}

TEST_F(EventTapTest, TypesOutsideTheMaskNeverReachTheDelegate) {
    tap.start();
    const auto rightMouseDown = static_cast<EventType>(3);
    InputEvent event = SimInput::mouseDown(somewhere);
    event.type = rightMouseDown;
    delegate->consumeMouseDown = true;
    EXPECT_TRUE(deliver(event));
    EXPECT_TRUE(delegate->downs.empty());
}

TEST_F(EventTapTest, WithTheDelegateGoneEventsPassButKeyUpsStillSettle) {
    tap.start();
    delegate->consumeKeyDown = true;
    deliver(SimInput::keyDown(KeyCode::q, ModifierFlag::command));
    delegate.reset();
    EXPECT_TRUE(deliver(SimInput::mouseDown(somewhere)));
    EXPECT_TRUE(deliver(SimInput::keyDown(KeyCode::w, ModifierFlag::command)));
    EXPECT_FALSE(deliver(SimInput::keyUp(KeyCode::q)));
    EXPECT_TRUE(deliver(SimInput::keyUp(KeyCode::q)));
}

TEST_F(EventTapTest, StopForgetsPendingSwallows) {
    tap.start();
    delegate->consumeMouseDown = true;
    delegate->consumeKeyDown = true;
    deliver(SimInput::mouseDown(somewhere));
    deliver(SimInput::keyDown(KeyCode::w, ModifierFlag::command));
    tap.stop();
    EXPECT_FALSE(port().exists());
    EXPECT_TRUE(deliver(SimInput::mouseUp(somewhere)));
    tap.start();
    EXPECT_TRUE(deliver(SimInput::mouseUp(somewhere)));
    EXPECT_TRUE(deliver(SimInput::keyUp(KeyCode::w)));
    EXPECT_EQ(delegate->ups.size(), 1u);
}

TEST_F(EventTapTest, StoppedTapSeesNothing) {
    tap.start();
    tap.stop();
    delegate->consumeKeyDown = true;
    EXPECT_TRUE(deliver(SimInput::keyDown(KeyCode::w, ModifierFlag::command | capsLock)));
    EXPECT_TRUE(delegate->keys.empty());
}

TEST_F(EventTapTest, FreeingTheTapRemovesItsPort) {
    auto running = std::make_unique<EventTap>();
    running->start();
    running.reset();
    EXPECT_FALSE(port().exists());
    EXPECT_TRUE(deliver(SimInput::mouseDown(somewhere)));
}

}  // namespace
}  // namespace vistrel
