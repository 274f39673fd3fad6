#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "settings/command_channel.h"
#include "settings/preference_key.h"
#include "settings/settings.h"
#include "settings_app_test.h"

namespace vistrel {
namespace {

using Command = CommandChannel::Command;
using Request = CommandChannel::Request;

class SettingsModelCommandsTest : public testing::SettingsAppTest {
  protected:
    // What the agent's dispatcher makes of every command notification posted so far.
    std::vector<Request> requests() {
        std::vector<Request> parsed;
        for (const auto& [name, userInfo] : desktop.notifications().posted) {
            EXPECT_EQ(name, "com.quillmarsh.vistrel.command");
            const auto request = CommandChannel::parse(userInfo);
            EXPECT_TRUE(request.has_value());
            if (request) parsed.push_back(*request);
        }
        return parsed;
    }
    const NotificationCenter::UserInfo& lastUserInfo() {
        return desktop.notifications().posted.back().second;
    }

    std::unique_ptr<SettingsModel> model = launch();
};

TEST_F(SettingsModelCommandsTest, CheckForUpdatesPostsItsCommandAlone) {
    model->press("general.checkForUpdates");
    EXPECT_EQ(requests(), (std::vector<Request>{{Command::checkForUpdates, false}}));
    EXPECT_EQ(lastUserInfo(), NotificationCenter::UserInfo(
                                  DefaultsValue::Dictionary{{"command", "checkForUpdates"}}));
}

TEST_F(SettingsModelCommandsTest, OpenSystemSettingsPostsRequestAccessibility) {
    model->press("general.requestAccessibility");
    model->press("welcome.requestAccessibility");
    EXPECT_EQ(requests(), (std::vector<Request>{{Command::requestAccessibility, false},
                                                {Command::requestAccessibility, false}}));
    EXPECT_EQ(lastUserInfo(), NotificationCenter::UserInfo(
                                  DefaultsValue::Dictionary{{"command", "requestAccessibility"}}));
}

TEST_F(SettingsModelCommandsTest, TheLoginSwitchPostsSetLaunchAtLoginWithABooleanValue) {
    model->setOn("general.launchAtLogin", true);
    EXPECT_EQ(lastUserInfo(), NotificationCenter::UserInfo(DefaultsValue::Dictionary{
                                  {"command", "setLaunchAtLogin"}, {"value", true}}));
    model->setOn("welcome.launchAtLogin", false);
    EXPECT_EQ(requests(), (std::vector<Request>{{Command::setLaunchAtLogin, true},
                                                {Command::setLaunchAtLogin, false}}));
}

TEST_F(SettingsModelCommandsTest, TheLoginSwitchLeavesTheAgentsStatusKeyToTheAgent) {
    model->setOn("general.launchAtLogin", true);
    EXPECT_TRUE(stored(PreferenceKey::agentLaunchAtLogin).isNone());
    put(PreferenceKey::agentLaunchAtLogin, true);
    EXPECT_TRUE(model->isOn("general.launchAtLogin"));
}

TEST_F(SettingsModelCommandsTest, TheMenuBarSwitchWritesTheKeyBeforeAskingTheAgentToApplyIt) {
    DefaultsValue storedWhenPosted;
    desktop.notifications().observe("com.quillmarsh.vistrel.command", [&](const auto&) {
        storedWhenPosted = stored(PreferenceKey::menuBarIconHidden);
    });
    model->setOn("general.menuBarIcon", false);
    desktop.executor().runUntilIdle();
    EXPECT_EQ(requests(), (std::vector<Request>{{Command::applySettings, false}}));
    EXPECT_EQ(storedWhenPosted, DefaultsValue(true));
}

TEST_F(SettingsModelCommandsTest, PreferencesTheAgentReadsLivePostNothing) {
    model->setOn("buttons.minimize", true);
    model->choose("buttons.theme", "soft");
    model->setNumber("layouts.gap", 8);
    model->setOn("shortcuts.hide", false);
    EXPECT_TRUE(desktop.notifications().posted.empty());
}

// The pair end to end: what the Settings app posts, the agent's channel carries out.
TEST_F(SettingsModelCommandsTest, TheAgentsChannelCarriesOutWhatTheSettingsAppPosts) {
    CommandChannel channel([] {});
    channel.listen();
    desktop.trusted = false;
    model->press("general.requestAccessibility");
    model->setOn("general.launchAtLogin", true);
    desktop.executor().runUntilIdle();
    EXPECT_EQ(desktop.trustPrompts, 1);
    EXPECT_EQ(desktop.loginItem().status(), LoginItemStatus::enabled);
    EXPECT_EQ(stored(PreferenceKey::agentLaunchAtLogin), DefaultsValue(true));
    EXPECT_TRUE(model->isOn("general.launchAtLogin"));
}

TEST_F(SettingsModelCommandsTest, TheProjectLinkOpensInTheBrowserAndPostsNothing) {
    model->press("about.website");
    ASSERT_EQ(desktop.workspace().openedURLs.size(), 1u);
    EXPECT_EQ(desktop.workspace().openedURLs.front(), model->control("about.website")->url);
    EXPECT_TRUE(desktop.notifications().posted.empty());
}

TEST_F(SettingsModelCommandsTest, PressingTextOrAnUnknownControlDoesNothing) {
    model->press("welcome.buttons");
    model->press("general.nothing");
    EXPECT_TRUE(desktop.notifications().posted.empty());
}

}  // namespace
}  // namespace vistrel
