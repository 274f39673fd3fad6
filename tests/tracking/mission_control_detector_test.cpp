#include "tracking/mission_control_detector.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "platform/sim/sim_scene.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

constexpr std::int64_t barLayer = 20;
// Virtual time counts seconds since 1970 in a double: about a microsecond of resolution.
constexpr double timeResolution = 1e-6;

WindowDescription windowOf(std::optional<std::string> owner, std::optional<std::int64_t> layer,
                           std::optional<std::string> name) {
    WindowDescription description;
    description.ownerName = std::move(owner);
    description.layer = layer;
    description.name = std::move(name);
    return description;
}

class DetectorWindowListTest : public testing::SimTest {
  protected:
    bool openWith(WindowDescription window) {
        desktop.windowServer().frontWindows = {std::move(window)};
        return MissionControlDetector::windowListShowsMissionControl();
    }
};

TEST_F(DetectorWindowListTest, DockWindowOnLayer18CountsWhateverItsName) {
    EXPECT_TRUE(openWith(windowOf("Dock", 18, "appicon")));
    EXPECT_TRUE(openWith(windowOf("Dock", 18, std::nullopt)));
    EXPECT_TRUE(openWith(windowOf("Dock", 18, "Mission Control")));
}

TEST_F(DetectorWindowListTest, WindowOfAnotherOwnerOnLayer18DoesNotCount) {
    EXPECT_FALSE(openWith(windowOf("Finder", 18, "appicon")));
    EXPECT_FALSE(openWith(windowOf(std::nullopt, 18, "appicon")));
}

// Other processes' window names are absent without the Screen Recording permission, so
// a rule on them could never fire: the name is not looked at.
TEST_F(DetectorWindowListTest, DockWindowOnLayer20NeverCountsWhateverItsName) {
    EXPECT_FALSE(openWith(windowOf("Dock", barLayer, "Dock")));
    EXPECT_FALSE(openWith(windowOf("Dock", barLayer, std::nullopt)));
    EXPECT_FALSE(openWith(windowOf("Dock", barLayer, "appicon")));
}

TEST_F(DetectorWindowListTest, OwnerNameMustMatchExactly) {
    EXPECT_FALSE(openWith(windowOf("dock", 18, std::nullopt)));
    EXPECT_FALSE(openWith(windowOf("Dock ", 18, std::nullopt)));
}

TEST_F(DetectorWindowListTest, MissingLayerReadsAsLayerZero) {
    EXPECT_FALSE(openWith(windowOf("Dock", std::nullopt, std::nullopt)));
    EXPECT_FALSE(openWith(windowOf("Dock", std::nullopt, "appicon")));
}

TEST_F(DetectorWindowListTest, AppExposeShowsTheLayer18WindowButIsNotMissionControl) {
    populateDefaultScene(desktop);
    desktop.dock().openAppExpose();
    EXPECT_TRUE(MissionControlDetector::windowListShowsMissionControl());
    EXPECT_FALSE(MissionControlDetector::isMissionControlOpen());
    desktop.dock().close();
    desktop.dock().open();
    EXPECT_TRUE(MissionControlDetector::isMissionControlOpen());
}

TEST_F(DetectorWindowListTest, DockThatDoesNotAnswerLeavesTheWindowListsAnswer) {
    populateDefaultScene(desktop);
    desktop.dock().open();
    desktop.application(desktop.dock().pid())->hung = true;
    EXPECT_TRUE(MissionControlDetector::isMissionControlOpen());
}

TEST_F(DetectorWindowListTest, NoListOrAnEmptyListMeansClosed) {
    EXPECT_FALSE(MissionControlDetector::isMissionControlOpen());
    desktop.windowServer().frontWindows = {windowOf("Dock", 18, std::nullopt)};
    desktop.windowServer().listFails = true;
    EXPECT_FALSE(MissionControlDetector::isMissionControlOpen());
}

TEST_F(DetectorWindowListTest, FollowsTheSimulatedDock) {
    populateDefaultScene(desktop);
    EXPECT_FALSE(MissionControlDetector::isMissionControlOpen());
    desktop.dock().open();
    EXPECT_TRUE(MissionControlDetector::isMissionControlOpen());
    desktop.dock().close();
    EXPECT_FALSE(MissionControlDetector::isMissionControlOpen());
}

TEST(DetectorPacing, TableGivesTheNextInterval) {
    EXPECT_DOUBLE_EQ(MissionControlDetector::nextInterval(true, true, false), 0.066);
    EXPECT_DOUBLE_EQ(MissionControlDetector::nextInterval(true, true, true), 0.066);
    EXPECT_DOUBLE_EQ(MissionControlDetector::nextInterval(true, false, true), 0.5);
    EXPECT_DOUBLE_EQ(MissionControlDetector::nextInterval(false, false, true), 5.0);
    EXPECT_DOUBLE_EQ(MissionControlDetector::nextInterval(false, false, false), 1.0);
}

struct Tick {
    double at;
    bool open;
};

class DetectorTest : public testing::SimTest {
  protected:
    DetectorTest() {
        populateDefaultScene(desktop);
        detector = std::make_unique<MissionControlDetector>();
        detector->onTick = [this](bool open) { ticks.push_back({desktop.clock().now(), open}); };
        started = desktop.clock().now();
        detector->schedule(MissionControlDetector::startDelay);
    }

    // Fires the pending timer; the tick it made is the last one recorded.
    Tick step() {
        const std::size_t before = ticks.size();
        EXPECT_TRUE(desktop.executor().advanceToNextEvent());
        EXPECT_EQ(ticks.size(), before + 1);
        return ticks.back();
    }

    void setOnboardingCompleted(bool done) {
        Shared::store()->set(std::string(PreferenceKey::onboardingCompleted), done);
    }

    double started = 0;
    std::unique_ptr<MissionControlDetector> detector;
    std::vector<Tick> ticks;
};

TEST_F(DetectorTest, FirstTickComesFiftyMillisecondsAfterStart) {
    desktop.executor().advance(0.049);
    EXPECT_TRUE(ticks.empty());
    desktop.executor().advance(0.001);
    ASSERT_EQ(ticks.size(), 1u);
    EXPECT_NEAR(ticks.front().at - started, 0.05, timeResolution);
    EXPECT_NEAR(desktop.executor().timers().front().tolerance, 0.005, 1e-12);
}

TEST_F(DetectorTest, ListenerHearsEveryTickEvenWhenNothingChanged) {
    desktop.executor().advance(2.05);
    ASSERT_EQ(ticks.size(), 5u);
    for (const Tick& tick : ticks)
        EXPECT_FALSE(tick.open);
}

// One step of the scripted timeline: what happens before the tick, what the tick reports
// and the interval (with its 10 % tolerance) of the timer it arms.
struct Scripted {
    const char* happening;
    std::function<void()> before;
    bool open;
    double next;
};

TEST_F(DetectorTest, PacingFollowsTheTableTickByTickOverAScriptedTimeline) {
    auto nothing = [] {};
    const std::vector<Scripted> script = {
        {"start, closed", nothing, false, 0.5},
        {"Mission Control opens", [this] { desktop.dock().open(); }, true, 0.066},
        {"stays open", nothing, true, 0.066},
        {"Mission Control closes", [this] { desktop.dock().close(); }, false, 0.5},
        {"grant revoked", [this] { desktop.trusted = false; }, false, 1.0},
        {"revoked while open", [this] { desktop.dock().open(); }, false, 1.0},
        {"onboarding completed", [this] { setOnboardingCompleted(true); }, false, 5.0},
        {"granted again", [this] { desktop.trusted = true; }, true, 0.066},
        {"closes again", [this] { desktop.dock().close(); }, false, 0.5},
    };
    double expectedAt = started + MissionControlDetector::startDelay;
    for (std::size_t i = 0; i < script.size(); ++i) {
        SCOPED_TRACE(script[i].happening);
        script[i].before();
        const Tick tick = step();
        EXPECT_NEAR(tick.at, expectedAt, timeResolution);
        EXPECT_EQ(tick.open, script[i].open);
        const SimTimerRecord armed = desktop.executor().timers().at(i + 1);
        EXPECT_NEAR(armed.armedAt, tick.at, timeResolution);
        EXPECT_DOUBLE_EQ(armed.interval, script[i].next);
        EXPECT_NEAR(armed.tolerance, script[i].next * 0.1, 1e-12);
        expectedAt += script[i].next;
    }
}

TEST_F(DetectorTest, WithoutTheGrantTicksComeEverySecondBeforeOnboarding) {
    desktop.trusted = false;
    desktop.dock().open();
    const int listReads = desktop.windowServer().listQueries();
    desktop.executor().advance(3.05);
    ASSERT_EQ(ticks.size(), 4u);
    for (std::size_t i = 1; i < ticks.size(); ++i) {
        EXPECT_FALSE(ticks[i].open);
        EXPECT_NEAR(ticks[i].at - ticks[i - 1].at, 1.0, timeResolution);
    }
    EXPECT_EQ(desktop.windowServer().listQueries(), listReads);
}

TEST_F(DetectorTest, WithoutTheGrantTicksComeEveryFiveSecondsAfterOnboarding) {
    desktop.trusted = false;
    setOnboardingCompleted(true);
    desktop.executor().advance(15.05);
    ASSERT_EQ(ticks.size(), 4u);
    for (std::size_t i = 1; i < ticks.size(); ++i) {
        EXPECT_FALSE(ticks[i].open);
        EXPECT_NEAR(ticks[i].at - ticks[i - 1].at, 5.0, timeResolution);
    }
}

TEST_F(DetectorTest, EachTickReadsTheWindowListOnce) {
    desktop.dock().open();
    const int before = desktop.windowServer().listQueries();
    step();
    step();
    EXPECT_EQ(desktop.windowServer().listQueries(), before + 2);
}

TEST_F(DetectorTest, FreeingTheDetectorEndsTheChain) {
    step();
    detector.reset();
    EXPECT_FALSE(desktop.executor().nextEventTime().has_value());
    desktop.executor().advance(10);
    EXPECT_EQ(ticks.size(), 1u);
}

TEST_F(DetectorTest, ListenerFreeingTheDetectorEndsTheChainWithoutATimer) {
    detector->onTick = [this](bool) {
        ticks.push_back({desktop.clock().now(), false});
        detector.reset();
    };
    step();
    EXPECT_EQ(desktop.executor().timers().size(), 1u);
    EXPECT_FALSE(desktop.executor().advanceToNextEvent());
}

}  // namespace
}  // namespace vistrel
