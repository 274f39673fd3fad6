#include "app/app_delegate.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/sim/sim_event_tap_port.h"
#include "platform/sim/sim_scene.h"
#include "session/engine.h"
#include "settings/preference_key.h"
#include "settings/settings_launcher.h"
#include "settings/shared.h"
#include "settings/updates.h"
#include "support/sim_test.h"
#include "ui/menu/status_menu_controller.h"

namespace vistrel {
namespace {

using Arguments = std::vector<std::string>;

class AppDelegateTest : public testing::SimTest {
  protected:
    AppDelegateTest() {
        SimInstalledApplication settings;
        settings.bundleIdentifier = "com.quillmarsh.vistrel.settings";
        settings.name = "Vistrel Settings";
        settings.path = SettingsLauncher::path(desktop.bundle.path);
        desktop.installations().install(settings);
    }

    void set(std::string_view key, bool value) { Shared::store()->set(std::string(key), value); }
    bool flag(std::string_view key) {
        return Shared::store()->object(std::string(key)).boolean().value_or(false);
    }
    // Launches the agent and lets the delayed work of start-up run.
    void launch() {
        delegate.applicationDidFinishLaunching();
        desktop.executor().advance(1);
    }
    bool hasVisibleStatusItem() {
        const auto& items = desktop.statusBar().items();
        return !items.empty() && items.front()->isVisible();
    }
    std::vector<Arguments> settingsOpenedWith() {
        std::vector<Arguments> opened;
        for (const auto& [url, configuration] : desktop.workspace().openRequests)
            opened.push_back(configuration.arguments);
        return opened;
    }
    void addRunningCopyOfTheAgent() {
        SimApplication copy;
        copy.bundleIdentifier = *desktop.bundle.identifier;
        copy.name = "Vistrel";
        desktop.addApplication(copy);
    }

    AppDelegate delegate;
};

TEST_F(AppDelegateTest, UnderATestHostLaunchingCreatesNothing) {
    desktop.launch().variables[std::string(AppDelegate::testHostVariable)] =
        "/tmp/x.xctestconfiguration";
    launch();
    EXPECT_EQ(delegate.statusMenu(), nullptr);
    EXPECT_EQ(delegate.engine(), nullptr);
    EXPECT_TRUE(desktop.statusBar().items().empty());
    EXPECT_TRUE(desktop.systemLog().lines().empty());
}

TEST_F(AppDelegateTest, ASecondCopyQuitsAndTheFirstIsUnaffected) {
    addRunningCopyOfTheAgent();
    addRunningCopyOfTheAgent();
    launch();
    EXPECT_TRUE(desktop.application().terminated());
    EXPECT_TRUE(desktop.statusBar().items().empty());
    EXPECT_FALSE(desktop.eventTap().exists());
    EXPECT_EQ(delegate.engine(), nullptr);
}

TEST_F(AppDelegateTest, TheOnlyCopyRuns) {
    addRunningCopyOfTheAgent();
    launch();
    EXPECT_FALSE(desktop.application().terminated());
    EXPECT_TRUE(hasVisibleStatusItem());
    EXPECT_NE(delegate.engine(), nullptr);
}

TEST_F(AppDelegateTest, TheRunningAgentStaysOutOfAppNapSoItsTimersFireOnTime) {
    launch();
    EXPECT_EQ(desktop.application().timersKeptOnTime(), std::string(AppDelegate::timersReason));
}

TEST_F(AppDelegateTest, ACopyThatQuitsAtOnceTakesNoActivity) {
    addRunningCopyOfTheAgent();
    addRunningCopyOfTheAgent();
    launch();
    EXPECT_EQ(desktop.application().timersKeptOnTime(), std::nullopt);
}

TEST_F(AppDelegateTest, RunningFromADiskImageOffersTheMoveAndNotNowStartsFromThere) {
    desktop.bundle.path = "/Volumes/Vistrel/Vistrel.app";
    desktop.alert().answers.push_back(1);
    launch();
    ASSERT_EQ(desktop.alert().shown.size(), 1u);
    EXPECT_EQ(desktop.alert().shown[0].title, "Move Vistrel to Applications?");
    EXPECT_EQ(desktop.alert().shown[0].buttons, (Arguments{"Move to Applications", "Not Now"}));
    EXPECT_FALSE(desktop.application().terminated());
    EXPECT_TRUE(hasVisibleStatusItem());
    EXPECT_NE(delegate.engine(), nullptr);
}

TEST_F(AppDelegateTest, RunningFromApplicationsOffersNothing) {
    launch();
    EXPECT_TRUE(desktop.alert().shown.empty());
}

TEST_F(AppDelegateTest, FirstLaunchOpensTheWelcomeGuideAndDoesNotPromptItself) {
    desktop.trusted = false;
    launch();
    EXPECT_EQ(settingsOpenedWith(), (std::vector<Arguments>{{"--onboarding"}}));
    EXPECT_EQ(desktop.trustPrompts, 0);
}

TEST_F(AppDelegateTest, LaterLaunchWithoutTheGrantShowsTheSystemPrompt) {
    set(PreferenceKey::onboardingCompleted, true);
    desktop.trusted = false;
    launch();
    EXPECT_EQ(desktop.trustPrompts, 1);
    EXPECT_TRUE(settingsOpenedWith().empty());
}

TEST_F(AppDelegateTest, LaterLaunchWithTheGrantNeitherPromptsNorOpensSettings) {
    set(PreferenceKey::onboardingCompleted, true);
    launch();
    EXPECT_EQ(desktop.trustPrompts, 0);
    EXPECT_TRUE(settingsOpenedWith().empty());
}

TEST_F(AppDelegateTest, StartUpPublishesTheStatusForTheSettingsApp) {
    desktop.trusted = false;
    launch();
    EXPECT_EQ(
        Shared::store()->object(std::string(PreferenceKey::agentAccessibilityTrusted)).boolean(),
        false);
}

TEST_F(AppDelegateTest, TheStartLineNamesVersionSystemAndGrant) {
    launch();
    EXPECT_EQ(
        desktop.systemLog().count(
            "Vistrel 1.0 (1) started on macOS Version 15.1 (Build 24B83), accessibility true"),
        1u);
}

TEST_F(AppDelegateTest, StartUpLeavesWhereMissionControlIsReadToItsFirstOpening) {
    launch();
    EXPECT_EQ(desktop.systemLog().count("mission control: reading the Dock"), 0u);
}

TEST_F(AppDelegateTest, AMissingVersionIsWrittenAsAQuestionMark) {
    desktop.bundle.version.clear();
    desktop.bundle.build.clear();
    desktop.trusted = false;
    EXPECT_EQ(AppDelegate::startedLine(),
              "Vistrel ? (?) started on macOS Version 15.1 (Build 24B83), accessibility false");
}

TEST_F(AppDelegateTest, UpdatesStartAfterTheStartLine) {
    desktop.infoDictionary().values[std::string(Updates::publicKeyInfoKey)] =
        std::string(Updates::publicKeyLength, 'k');
    launch();
    const auto messages = desktop.systemLog().messages();
    ASSERT_GE(messages.size(), 2u);
    EXPECT_EQ(messages[messages.size() - 2].rfind("Vistrel 1.0 (1) started", 0), 0u);
    EXPECT_EQ(messages.back(), "updates: checking https://updates.example.com/appcast.xml");
    ASSERT_NE(delegate.statusMenu(), nullptr);
    EXPECT_TRUE(delegate.statusMenu()->updater.has_value());
}

TEST_F(AppDelegateTest, TheCheckForUpdatesCommandReachesTheRunningUpdater) {
    desktop.infoDictionary().values[std::string(Updates::publicKeyInfoKey)] =
        std::string(Updates::publicKeyLength, 'k');
    launch();
    ASSERT_EQ(desktop.updates().record.checks, 0);
    desktop.notifications().post(std::string(Shared::Command::name),
                                 DefaultsValue::Dictionary{{"command", "checkForUpdates"}});
    desktop.executor().runUntilIdle();
    EXPECT_EQ(desktop.updates().record.checks, 1);
}

TEST_F(AppDelegateTest, WithoutAnUpdateKeyTheMenuHasNoUpdater) {
    launch();
    ASSERT_NE(delegate.statusMenu(), nullptr);
    EXPECT_FALSE(delegate.statusMenu()->updater.has_value());
    EXPECT_EQ(desktop.systemLog().count("updates: off, no Sparkle public key in this build"), 1u);
}

TEST_F(AppDelegateTest, TheMenuOpensSettingsWelcomeAndAboutWithTheirArguments) {
    set(PreferenceKey::onboardingCompleted, true);
    launch();
    StatusMenuController& menu = *delegate.statusMenu();
    menu.openSettings();
    desktop.executor().advance(1);
    menu.openWelcome();
    desktop.executor().advance(1);
    menu.openAbout();
    desktop.executor().advance(1);
    EXPECT_EQ(settingsOpenedWith(),
              (std::vector<Arguments>{{}, {"--onboarding", "--replay"}, {"--about"}}));
}

TEST_F(AppDelegateTest, ApplySettingsHidesAndShowsTheStatusItem) {
    launch();
    set(PreferenceKey::menuBarIconHidden, true);
    desktop.notifications().post(std::string(Shared::Command::name),
                                 DefaultsValue::Dictionary{{"command", "applySettings"}});
    desktop.executor().runUntilIdle();
    EXPECT_FALSE(hasVisibleStatusItem());
    set(PreferenceKey::menuBarIconHidden, false);
    desktop.notifications().post(std::string(Shared::Command::name),
                                 DefaultsValue::Dictionary{{"command", "applySettings"}});
    desktop.executor().runUntilIdle();
    EXPECT_TRUE(hasVisibleStatusItem());
}

TEST_F(AppDelegateTest, ReopeningWhileTheIconIsHiddenShowsItAndOpensSettings) {
    set(PreferenceKey::onboardingCompleted, true);
    set(PreferenceKey::menuBarIconHidden, true);
    launch();
    ASSERT_FALSE(hasVisibleStatusItem());
    EXPECT_TRUE(delegate.applicationShouldHandleReopen());
    desktop.executor().advance(1);
    EXPECT_FALSE(flag(PreferenceKey::menuBarIconHidden));
    EXPECT_TRUE(hasVisibleStatusItem());
    EXPECT_EQ(settingsOpenedWith(), (std::vector<Arguments>{{}}));
}

TEST_F(AppDelegateTest, ReopeningBeforeTheWelcomeGuideWasFinishedOpensItAgain) {
    launch();
    EXPECT_TRUE(delegate.applicationShouldHandleReopen());
    desktop.executor().advance(1);
    EXPECT_EQ(settingsOpenedWith(), (std::vector<Arguments>{{"--onboarding"}, {"--onboarding"}}));
}

// A first launch all the way: the welcome guide opens instead of the agent's own prompt, the
// engine runs without the grant, and once the grant arrives Mission Control gets its strip.
TEST_F(AppDelegateTest, FirstLaunchRunsTheEngineAndTheStripAppearsOnceTheGrantIsGiven) {
    populateDefaultScene(desktop);
    desktop.trusted = false;
    launch();
    EXPECT_EQ(settingsOpenedWith(), (std::vector<Arguments>{{"--onboarding"}}));
    EXPECT_EQ(desktop.trustPrompts, 0);
    ASSERT_NE(delegate.engine(), nullptr);

    desktop.dock().open();
    desktop.executor().advance(2);
    EXPECT_FALSE(delegate.engine()->active());

    desktop.trusted = true;
    desktop.executor().advance(6);
    ASSERT_TRUE(delegate.engine()->active());
    const auto thumbnails = desktop.dock().thumbnails();
    ASSERT_FALSE(thumbnails.empty());
    const Rect thumb = thumbnails.front().frame;
    desktop.eventTap().deliver(SimInput::mouseMoved({thumb.midX(), thumb.midY()}));
    desktop.executor().runUntilIdle();
    EXPECT_TRUE(delegate.engine()->target().has_value());
    EXPECT_TRUE(delegate.engine()->overlay().window().isVisible());
}

}  // namespace
}  // namespace vistrel
