#include <gtest/gtest.h>

#include <string>

#include "settings/preference_key.h"
#include "settings_app_test.h"

namespace vistrel {
namespace {

using Mode = SettingsModel::Mode;

using WelcomeGuideTest = testing::SettingsAppTest;

TEST_F(WelcomeGuideTest, OnboardingStartsTheGuideAtItsFirstStep) {
    const auto model = launch({"--onboarding"});
    EXPECT_EQ(model->mode(), Mode::welcome);
    EXPECT_EQ(model->currentPage().id, PageId::welcome);
    EXPECT_FALSE(model->replay());
    EXPECT_FALSE(model->canGoBack());
}

TEST_F(WelcomeGuideTest, AboutOpensTheAboutPageAndNoArgumentsGeneral) {
    EXPECT_EQ(launch({"--about"})->currentPage().id, PageId::about);
    const auto plain = launch();
    EXPECT_EQ(plain->mode(), Mode::settings);
    EXPECT_EQ(plain->currentPage().id, PageId::general);
}

TEST_F(WelcomeGuideTest, TheStepsComeInOrderAndBackReturns) {
    const auto model = launch({"--onboarding"});
    model->goOn();
    EXPECT_EQ(model->currentPage().id, PageId::accessibility);
    EXPECT_TRUE(model->canGoBack());
    model->goOn();
    EXPECT_EQ(model->currentPage().id, PageId::login);
    model->goOn();
    EXPECT_EQ(model->currentPage().id, PageId::ready);
    model->goBack();
    EXPECT_EQ(model->currentPage().id, PageId::login);
}

TEST_F(WelcomeGuideTest, FinishingSetsOnboardingCompletedAndShowsTheSettings) {
    const auto model = launch({"--onboarding"});
    for (int step = 0; step < 3; ++step)
        model->goOn();
    EXPECT_EQ(model->continueTitle(), "Start Using Vistrel");
    EXPECT_TRUE(stored(PreferenceKey::onboardingCompleted).isNone());
    model->goOn();
    EXPECT_EQ(stored(PreferenceKey::onboardingCompleted), DefaultsValue(true));
    EXPECT_EQ(model->mode(), Mode::settings);
    EXPECT_EQ(model->currentPage().id, PageId::general);
}

TEST_F(WelcomeGuideTest, AReplayEndsWithDone) {
    const auto model = launch({"--onboarding", "--replay"});
    EXPECT_TRUE(model->replay());
    for (int step = 0; step < 3; ++step)
        model->goOn();
    EXPECT_EQ(model->continueTitle(), "Done");
}

TEST_F(WelcomeGuideTest, ShowingTheGuideFromGeneralCountsAsAReplayOnceFinished) {
    put(PreferenceKey::onboardingCompleted, true);
    const auto model = launch();
    model->press("general.welcome");
    EXPECT_EQ(model->mode(), Mode::welcome);
    EXPECT_EQ(model->welcomeStep(), 0u);
    EXPECT_TRUE(model->replay());
}

TEST_F(WelcomeGuideTest, TheAccessibilityStepShowsTheLiveGrant) {
    const auto model = launch({"--onboarding"});
    model->goOn();
    EXPECT_EQ(model->status("welcome.accessibility"), (StatusState{"Not allowed yet", false}));
    agentPublishes(PreferenceKey::agentAccessibilityTrusted, true);
    EXPECT_EQ(model->status("welcome.accessibility"), (StatusState{"Allowed", true}));
}

TEST_F(WelcomeGuideTest, AStaleGrantAsksToBeGrantedAgainOnTheGuideAndTheGeneralPage) {
    agentPublishes(PreferenceKey::agentAccessibilityTrusted, true);
    agentPublishes(PreferenceKey::agentAccessibilityStale, true);
    const auto model = launch({"--onboarding"});
    const StatusState stale{
        "Needs to be granted again: remove Vistrel from the list with −, then add it again.",
        false};
    EXPECT_EQ(model->status("welcome.accessibility"), stale);
    EXPECT_EQ(model->status("general.accessibility"), stale);
}

TEST_F(WelcomeGuideTest, AStaleGrantDoesNotMoveTheGuideOn) {
    agentPublishes(PreferenceKey::agentAccessibilityTrusted, false);
    const auto model = launch({"--onboarding"});
    model->setVisible(true);
    model->goOn();
    agentPublishes(PreferenceKey::agentAccessibilityStale, true);
    agentPublishes(PreferenceKey::agentAccessibilityTrusted, true);
    wait(2 * SettingsModel::statusRefreshInterval);
    EXPECT_EQ(model->currentPage().id, PageId::accessibility);
    agentPublishes(PreferenceKey::agentAccessibilityStale, false);
    wait(2 * SettingsModel::statusRefreshInterval);
    EXPECT_EQ(model->currentPage().id, PageId::login);
}

// The grant arrives mid-way, given in System Settings while the guide waits: within a
// second the guide sees it and moves on by itself.
TEST_F(WelcomeGuideTest, TheGrantArrivingMovesTheGuideOnWithinASecond) {
    agentPublishes(PreferenceKey::agentAccessibilityTrusted, false);
    const auto model = launch({"--onboarding"});
    model->setVisible(true);
    model->goOn();
    int told = 0;
    model->observe([&] { ++told; });
    wait(3);
    EXPECT_EQ(model->currentPage().id, PageId::accessibility);
    EXPECT_EQ(told, 0);
    agentPublishes(PreferenceKey::agentAccessibilityTrusted, true);
    wait(SettingsModel::statusRefreshInterval / 2);
    EXPECT_EQ(model->currentPage().id, PageId::accessibility);
    wait(SettingsModel::statusRefreshInterval);
    EXPECT_EQ(model->currentPage().id, PageId::login);
    EXPECT_GE(told, 1);
}

TEST_F(WelcomeGuideTest, AGrantGivenBeforeTheStepDoesNotSkipIt) {
    agentPublishes(PreferenceKey::agentAccessibilityTrusted, true);
    const auto model = launch({"--onboarding"});
    model->setVisible(true);
    model->goOn();
    wait(3);
    EXPECT_EQ(model->currentPage().id, PageId::accessibility);
    EXPECT_TRUE(model->status("welcome.accessibility").good);
}

TEST_F(WelcomeGuideTest, AnotherStatusChangeOnTheAccessibilityStepDoesNotMoveOn) {
    agentPublishes(PreferenceKey::agentAccessibilityTrusted, true);
    const auto model = launch({"--onboarding"});
    model->setVisible(true);
    model->goOn();
    agentPublishes(PreferenceKey::agentLaunchAtLogin, true);
    wait(2);
    EXPECT_EQ(model->currentPage().id, PageId::accessibility);
}

TEST_F(WelcomeGuideTest, AGrantOnAnotherStepOnlyRefreshesIt) {
    const auto model = launch({"--onboarding"});
    model->setVisible(true);
    model->goOn();
    model->goOn();
    agentPublishes(PreferenceKey::agentAccessibilityTrusted, true);
    wait(2);
    EXPECT_EQ(model->currentPage().id, PageId::login);
}

TEST_F(WelcomeGuideTest, TheLoginStepShowsThatTheSystemWaitsForApproval) {
    const auto model = launch({"--onboarding"});
    model->setVisible(true);
    model->goOn();
    model->goOn();
    int told = 0;
    model->observe([&] { ++told; });
    agentPublishes(PreferenceKey::agentLaunchAtLoginNeedsApproval, true);
    wait(SettingsModel::statusRefreshInterval);
    EXPECT_EQ(told, 1);
    const StatusState status = model->status("welcome.loginStatus");
    EXPECT_FALSE(status.good);
    EXPECT_NE(status.text.find("approval"), std::string::npos);
}

TEST_F(WelcomeGuideTest, StatusIsNotPolledWhileTheWindowIsHidden) {
    const auto model = launch({"--onboarding"});
    model->goOn();
    agentPublishes(PreferenceKey::agentAccessibilityTrusted, true);
    wait(3);
    EXPECT_EQ(model->currentPage().id, PageId::accessibility);
}

TEST_F(WelcomeGuideTest, AGrantGivenWhileTheWindowWasHiddenMovesOnWhenItShowsAgain) {
    agentPublishes(PreferenceKey::agentAccessibilityTrusted, false);
    const auto model = launch({"--onboarding"});
    model->setVisible(true);
    model->goOn();
    model->setVisible(false);
    agentPublishes(PreferenceKey::agentAccessibilityTrusted, true);
    wait(3);
    EXPECT_EQ(model->currentPage().id, PageId::accessibility);
    model->setVisible(true);
    EXPECT_EQ(model->currentPage().id, PageId::login);
}

}  // namespace
}  // namespace vistrel
