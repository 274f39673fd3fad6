#include "settings/settings_launcher.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "settings/preference_key.h"
#include "settings/shared.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

using Arguments = std::vector<std::string>;

constexpr std::string_view settingsIdentifier = "com.quillmarsh.vistrel.settings";

class SettingsLauncherTest : public testing::SimTest {
  protected:
    SettingsLauncherTest() {
        SimInstalledApplication settings;
        settings.bundleIdentifier = std::string(settingsIdentifier);
        settings.name = "Vistrel Settings";
        settings.path = SettingsLauncher::path(desktop.bundle.path);
        desktop.installations().install(settings);
    }

    void completeOnboarding() {
        Shared::store()->set(std::string(PreferenceKey::onboardingCompleted), true);
    }
    const std::vector<std::pair<std::string, OpenConfiguration>>& opened() {
        return desktop.workspace().openRequests;
    }
    std::vector<Pid> runningSettings() {
        std::vector<Pid> pids;
        for (const auto& app : desktop.workspace().runningApplications()) {
            if (app.bundleIdentifier == settingsIdentifier) pids.push_back(app.pid);
        }
        return pids;
    }
};

TEST(SettingsLauncherArguments, WelcomeGuideTheFirstTimeIsOnboardingAlone) {
    EXPECT_EQ(SettingsLauncher::arguments(true, false, false), (Arguments{"--onboarding"}));
}

TEST(SettingsLauncherArguments, WelcomeGuideAgainAddsReplay) {
    EXPECT_EQ(SettingsLauncher::arguments(true, false, true),
              (Arguments{"--onboarding", "--replay"}));
}

TEST(SettingsLauncherArguments, AboutPageIsAbout) {
    EXPECT_EQ(SettingsLauncher::arguments(false, true, true), (Arguments{"--about"}));
}

TEST(SettingsLauncherArguments, PlainSettingsHaveNoArguments) {
    EXPECT_EQ(SettingsLauncher::arguments(false, false, true), Arguments{});
}

TEST(SettingsLauncherArguments, OnboardingWinsOverAbout) {
    EXPECT_EQ(SettingsLauncher::arguments(true, true, false), (Arguments{"--onboarding"}));
}

TEST_F(SettingsLauncherTest, TheSettingsAppLivesInTheAgentsHelpersFolder) {
    EXPECT_EQ(SettingsLauncher::path("/Applications/Vistrel.app"),
              "/Applications/Vistrel.app/Contents/Helpers/Vistrel Settings.app");
}

TEST_F(SettingsLauncherTest, OpensTheSettingsAppAfterAPauseAsANewActiveInstance) {
    SettingsLauncher::open(false, true);
    desktop.executor().advance(SettingsLauncher::openDelay - 0.01);
    EXPECT_TRUE(opened().empty());
    desktop.executor().advance(0.01);
    ASSERT_EQ(opened().size(), 1u);
    EXPECT_EQ(opened()[0].first, SettingsLauncher::path(desktop.bundle.path));
    EXPECT_TRUE(opened()[0].second.activates);
    EXPECT_TRUE(opened()[0].second.createsNewApplicationInstance);
    EXPECT_EQ(opened()[0].second.arguments, (Arguments{"--about"}));
}

TEST_F(SettingsLauncherTest, OpeningTheWelcomeGuideWhileSettingsRunRestartsThem) {
    SettingsLauncher::open(false, false);
    desktop.executor().advance(2);
    const auto before = runningSettings();
    ASSERT_EQ(before.size(), 1u);

    completeOnboarding();
    SettingsLauncher::open(true, false);
    EXPECT_TRUE(runningSettings().empty()) << "the running copy is asked to quit first";
    desktop.executor().advance(2);
    ASSERT_EQ(runningSettings().size(), 1u);
    EXPECT_NE(runningSettings().front(), before.front());
    EXPECT_EQ(opened().back().second.arguments, (Arguments{"--onboarding", "--replay"}));
}

TEST_F(SettingsLauncherTest, AMissingSettingsAppIsLoggedAsAnError) {
    desktop.bundle.path = "/Volumes/Vistrel/Vistrel.app";
    SettingsLauncher::open(false, false);
    desktop.executor().advance(1);
    ASSERT_EQ(desktop.systemLog().lines().size(), 1u);
    EXPECT_EQ(desktop.systemLog().lines().front().level, LogLevel::error);
    EXPECT_EQ(desktop.systemLog().messages().front(),
              "could not open settings: The application cannot be opened.");
}

}  // namespace
}  // namespace vistrel
