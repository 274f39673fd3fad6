// The detector on macOS 27, where the Dock's accessibility tree, read on a background
// queue, says whether Mission Control is open.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "platform/sim/sim_scene.h"
#include "support/sim_test.h"
#include "tracking/mission_control_detector.h"

namespace vistrel {
namespace {

constexpr double timeResolution = 1e-6;

class DetectorOnWindowManagerTest : public testing::SimTest {
  protected:
    DetectorOnWindowManagerTest() {
        desktop.systemInfo().version = {27, 0, 0};
        populateDefaultScene(desktop);
    }

    void start() {
        detector = std::make_unique<MissionControlDetector>();
        detector->onTick = [this](bool open) {
            ticks.push_back(open);
            tickTimes.push_back(desktop.clock().now());
        };
        detector->schedule(MissionControlDetector::startDelay);
    }

    // Gives the Dock these children, as if it had made them itself.
    void dockChildren(const std::vector<std::string>& identifiers) {
        SimAccessibility& ax = desktop.accessibility();
        const Pid dock = desktop.dock().launch();
        std::vector<AXElement> children;
        for (const std::string& identifier : identifiers) {
            children.push_back(ax.nodeElement(ax.addNode(dock, {{"AXIdentifier", identifier}})));
        }
        ax.applicationChildren[dock] = children;
    }

    std::unique_ptr<MissionControlDetector> detector;
    std::vector<bool> ticks;
    std::vector<double> tickTimes;
};

TEST_F(DetectorOnWindowManagerTest, DocksMissionControlGroupMeansOpen) {
    dockChildren({"dock-list", "mc"});
    EXPECT_TRUE(MissionControlDetector::isMissionControlOpen());
}

TEST_F(DetectorOnWindowManagerTest, AppExposeAndOtherGroupsDoNotCount) {
    dockChildren({"dock-list", "appexpose", "mc.display", "MC"});
    EXPECT_FALSE(MissionControlDetector::isMissionControlOpen());
    dockChildren({});
    EXPECT_FALSE(MissionControlDetector::isMissionControlOpen());
}

TEST_F(DetectorOnWindowManagerTest, FollowsTheSimulatedMissionControl) {
    EXPECT_FALSE(MissionControlDetector::isMissionControlOpen());
    desktop.dock().open();
    EXPECT_TRUE(MissionControlDetector::isMissionControlOpen());
    desktop.dock().close();
    EXPECT_FALSE(MissionControlDetector::isMissionControlOpen());
}

TEST_F(DetectorOnWindowManagerTest, DockWindowOnLayer20ThatStaysIsNoSignal) {
    desktop.dock().open();
    desktop.dock().close();
    const auto list = desktop.windowServer().windowList(WindowListOption::onScreenOnly);
    const auto fullScreen = std::find_if(list->begin(), list->end(), [&](const auto& window) {
        return window.ownerName == "Dock" && window.layer == 20 &&
               window.bounds == simPrimaryScreen;
    });
    ASSERT_NE(fullScreen, list->end());
    EXPECT_FALSE(MissionControlDetector::isMissionControlOpen());
}

TEST_F(DetectorOnWindowManagerTest, NoLayer18WindowShowsWhileOpen) {
    desktop.dock().open();
    const auto list = desktop.windowServer().windowList(WindowListOption::onScreenOnly);
    for (const WindowDescription& window : *list)
        EXPECT_NE(window.layer, 18);
    EXPECT_FALSE(MissionControlDetector::windowListShowsMissionControl());
}

TEST_F(DetectorOnWindowManagerTest, TheMainThreadNeverReadsTheDock) {
    desktop.dock().open();
    start();
    desktop.accessibility().resetCounts();
    desktop.executor().advanceMain(MissionControlDetector::startDelay);
    EXPECT_TRUE(ticks.empty());
    EXPECT_EQ(desktop.accessibility().attributeReads(), 0u);
    const auto queue = desktop.executor().queue(std::string(MissionControlDetector::queueLabel));
    ASSERT_TRUE(queue);
    EXPECT_EQ(queue->pending(), 1u);
    EXPECT_EQ(queue->quality(), QualityOfService::userInteractive);

    desktop.executor().runUntilIdle();
    EXPECT_EQ(ticks, std::vector<bool>{true});
    EXPECT_GT(desktop.accessibility().attributeReads("AXChildren"), 0u);
}

TEST_F(DetectorOnWindowManagerTest, OneDockReadPerTickAndThePacingTableStays) {
    start();
    desktop.executor().advance(MissionControlDetector::startDelay);
    desktop.executor().advance(MissionControlDetector::closedInterval);
    desktop.dock().open();
    desktop.accessibility().resetCounts();
    desktop.executor().advance(MissionControlDetector::closedInterval);
    for (int i = 0; i < 4; ++i)
        desktop.executor().advance(MissionControlDetector::openInterval);
    EXPECT_EQ(ticks, (std::vector<bool>{false, false, true, true, true, true, true}));
    EXPECT_EQ(desktop.accessibility().attributeReads("AXChildren"), 5u);
    for (std::size_t i = 3; i < tickTimes.size(); ++i) {
        EXPECT_NEAR(tickTimes[i] - tickTimes[i - 1], MissionControlDetector::openInterval,
                    timeResolution);
    }
    EXPECT_NEAR(tickTimes[1] - tickTimes[0], MissionControlDetector::closedInterval,
                timeResolution);
}

TEST_F(DetectorOnWindowManagerTest, WithoutTheGrantNothingIsReadAndThePaceIsASecond) {
    desktop.dock().open();
    desktop.trusted = false;
    start();
    desktop.accessibility().resetCounts();
    desktop.executor().advance(3.05);
    EXPECT_EQ(ticks, (std::vector<bool>{false, false, false, false}));
    EXPECT_EQ(desktop.accessibility().attributeReads(), 0u);
    EXPECT_FALSE(desktop.executor().queue(std::string(MissionControlDetector::queueLabel)));
    EXPECT_NEAR(tickTimes[1] - tickTimes[0], MissionControlDetector::untrustedInterval,
                timeResolution);
}

TEST_F(DetectorOnWindowManagerTest, ASlowDockDelaysTheNextPollInsteadOfStackingReads) {
    desktop.dock().open();
    start();
    desktop.executor().advance(MissionControlDetector::startDelay);
    desktop.application(desktop.dock().pid())->accessibilityLatency = 0.2;
    desktop.accessibility().resetCounts();
    desktop.executor().advance(1.0);
    // A read asks the Dock three times (its children, then the identifiers of its bar and
    // of "mc"), 0.6 s in all: the next poll comes that much after the open-state interval,
    // so within a second two reads ran, one after the other.
    EXPECT_EQ(desktop.accessibility().attributeReads("AXChildren"), 2u);
    ASSERT_GE(tickTimes.size(), 3u);
    const double readTime = 3 * 0.2;
    EXPECT_NEAR(tickTimes[2] - tickTimes[1], MissionControlDetector::openInterval + readTime,
                timeResolution);
    EXPECT_TRUE(ticks.back());
}

TEST_F(DetectorOnWindowManagerTest, DetectorFreedWhileAReadIsInFlightReportsNothing) {
    desktop.dock().open();
    start();
    desktop.executor().advanceMain(MissionControlDetector::startDelay);
    detector.reset();
    desktop.executor().runUntilIdle();
    EXPECT_TRUE(ticks.empty());
    EXPECT_FALSE(desktop.executor().nextEventTime());
}

}  // namespace
}  // namespace vistrel
