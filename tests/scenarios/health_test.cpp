// Vistrel notices when it cannot work on this Mac: a grant the system reports while every
// call fails, a Mission Control tree it cannot read, an event tap the system keeps switching
// off. Each is staged on the simulated desktop as public records show it happening.
#include <gtest/gtest.h>

#include "engine_scenario.h"
#include "platform/sim/sim_event_tap_port.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "tracking/health.h"
#include "tracking/mission_control_detector.h"

namespace vistrel::testing {
namespace {

void staleAsAPIDisabled(SimDesktop& desktop) {
    populateDefaultScene(desktop);
    desktop.staleGrant = AXError::apiDisabled;
}

void staleAsCannotComplete(SimDesktop& desktop) {
    populateDefaultScene(desktop);
    desktop.staleGrant = AXError::cannotComplete;
}

void noWindows(SimDesktop& desktop) {
    desktop.dock().launch();
}

bool publishedStale() {
    return Shared::store()
        ->object(std::string(PreferenceKey::agentAccessibilityStale))
        .boolean()
        .value_or(false);
}

class StaleGrantTest : public EngineScenario {
  protected:
    StaleGrantTest() : EngineScenario(staleAsAPIDisabled) {}
};

// AXSwift issue 39: calls answer "API disabled" while System Settings shows the grant on.
TEST_F(StaleGrantTest, AGrantThatSaysYesWhileTheDockReadFailsWithAPIDisabledIsStale) {
    EXPECT_TRUE(Health::shared().staleGrant());
    EXPECT_EQ(Health::shared().problem(), Health::Problem::staleGrant);
    EXPECT_TRUE(publishedStale()) << "the Settings app shows it too";
    EXPECT_EQ(logged(Health::staleGrantLine), 1u);
}

TEST_F(StaleGrantTest, GrantingAgainAfterRemovingTheEntryClearsIt) {
    desktop.trusted = false;
    desktop.executor().advance(MissionControlDetector::untrustedInterval);
    desktop.staleGrant.reset();
    desktop.trusted = true;
    desktop.executor().advance(MissionControlDetector::untrustedInterval);
    settle();
    EXPECT_FALSE(Health::shared().staleGrant());
    EXPECT_FALSE(publishedStale());
    EXPECT_EQ(logged(Health::staleGrantLine), 1u);
    EXPECT_EQ(logged(Health::grantWorksLine), 1u);
}

TEST_F(StaleGrantTest, TheGrantIsReadAgainOnlyWhenItChanges) {
    desktop.staleGrant.reset();
    desktop.executor().advance(2 * MissionControlDetector::closedInterval);
    settle();
    EXPECT_TRUE(Health::shared().staleGrant()) << "one read at start, none per tick";
}

void staleFromAnEarlierRun(SimDesktop& desktop) {
    populateDefaultScene(desktop);
    // The store outlives the agent: an earlier run found the grant stale, and the user gave it
    // again while Vistrel was not running.
    Shared::store()->set(std::string(PreferenceKey::agentAccessibilityStale), true);
}

class GrantGivenAgainWhileQuitTest : public EngineScenario {
  protected:
    GrantGivenAgainWhileQuitTest() : EngineScenario(staleFromAnEarlierRun) {}
};

TEST_F(GrantGivenAgainWhileQuitTest, AGrantFixedWhileVistrelWasNotRunningNoLongerReadsAsStale) {
    settle();
    EXPECT_FALSE(publishedStale()) << "the Settings app would still ask to grant it again";
    EXPECT_FALSE(Health::shared().staleGrant());
    EXPECT_EQ(logged(Health::grantWorksLine), 0u) << "nothing changed during this run";
}

class CannotCompleteGrantTest : public EngineScenario {
  protected:
    CannotCompleteGrantTest() : EngineScenario(staleAsCannotComplete) {}
};

TEST_F(CannotCompleteGrantTest, AGrantThatSaysYesWhileTheDockReadCannotCompleteIsStale) {
    EXPECT_TRUE(Health::shared().staleGrant());
}

class HealthyScenario : public EngineScenario {};

TEST_F(HealthyScenario, AGrantWhoseDockReadWorksIsNotStale) {
    EXPECT_FALSE(Health::shared().staleGrant());
    EXPECT_EQ(Health::shared().problem(), Health::Problem::none);
}

TEST_F(HealthyScenario, ThreeOpeningsWithAnEmptyMissionControlTreeMeanItCannotBeRead) {
    desktop.dock().treeEmpty = true;
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(Health::shared().selfCheck().cannotRead()) << "after " << i;
        openMissionControl();
        closeMissionControl();
    }
    EXPECT_EQ(Health::shared().problem(), Health::Problem::cannotReadMissionControl);
    const MissionControlReading last = *Health::shared().selfCheck().last();
    EXPECT_EQ(last.thumbnails, 0);
    EXPECT_GT(last.windows, 0);
    EXPECT_EQ(logged(std::string(Health::cannotReadLine) + last.summary()), 1u);
}

TEST_F(HealthyScenario, TheFirstOpeningThatWorksClearsTheSelfCheck) {
    desktop.dock().treeEmpty = true;
    for (int i = 0; i < 3; ++i) {
        openMissionControl();
        closeMissionControl();
    }
    desktop.dock().treeEmpty = false;
    openMissionControl();
    closeMissionControl();
    EXPECT_FALSE(Health::shared().selfCheck().cannotRead());
    EXPECT_GT(Health::shared().selfCheck().last()->mapped, 0);
    EXPECT_EQ(logged(Health::readsAgainLine), 1u);
}

TEST_F(HealthyScenario, OpeningsThatWorkNeverTripTheSelfCheck) {
    for (int i = 0; i < 4; ++i) {
        openMissionControl();
        closeMissionControl();
    }
    EXPECT_EQ(Health::shared().selfCheck().failuresInARow(), 0);
    EXPECT_EQ(Health::shared().selfCheck().last()->refusals, 0);
}

TEST_F(HealthyScenario,
       ATapDisabledMoreThanFiveTimesInAMinuteIsAReadinessProblemUntilACalmOpening) {
    openMissionControl();
    for (int i = 0; i < 6; ++i) {
        desktop.eventTap().deliver(SimInput::tapDisabled(EventType::tapDisabledByTimeout));
        desktop.executor().advance(1);
    }
    EXPECT_EQ(Health::shared().problem(), Health::Problem::tapUnsteady);
    closeMissionControl();
    EXPECT_TRUE(Health::shared().tapUnsteady()) << "that opening was not calm";
    openMissionControl();
    closeMissionControl();
    EXPECT_FALSE(Health::shared().tapUnsteady());
}

class EmptyDesktopTest : public EngineScenario {
  protected:
    EmptyDesktopTest() : EngineScenario(noWindows) {}
};

TEST_F(EmptyDesktopTest, OpeningsOfAnEmptyDesktopNeverSayMissionControlCannotBeRead) {
    for (int i = 0; i < 4; ++i) {
        openMissionControl();
        closeMissionControl();
    }
    EXPECT_FALSE(Health::shared().selfCheck().cannotRead());
    ASSERT_TRUE(Health::shared().selfCheck().last());
    EXPECT_EQ(Health::shared().selfCheck().last()->windows, 0);
}

}  // namespace
}  // namespace vistrel::testing
