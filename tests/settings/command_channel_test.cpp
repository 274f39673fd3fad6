#include "settings/command_channel.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "settings/accessibility_pane.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "settings/updates.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

using Command = CommandChannel::Command;
using UserInfo = NotificationCenter::UserInfo;

UserInfo command(DefaultsValue name) {
    return DefaultsValue::Dictionary{{"command", std::move(name)}};
}

class CommandChannelTest : public testing::SimTest {
  protected:
    void post(const UserInfo& userInfo) {
        desktop.notifications().post(std::string(Shared::Command::name), userInfo);
        desktop.executor().runUntilIdle();
    }
    bool loginItemRegistered() { return desktop.loginItem().status() == LoginItemStatus::enabled; }

    int applied = 0;
    CommandChannel channel{[this] { ++applied; }};
};

TEST_F(CommandChannelTest, EachCommandHasItsExactName) {
    EXPECT_EQ(CommandChannel::name(Command::applySettings), "applySettings");
    EXPECT_EQ(CommandChannel::name(Command::requestAccessibility), "requestAccessibility");
    EXPECT_EQ(CommandChannel::name(Command::setLaunchAtLogin), "setLaunchAtLogin");
    EXPECT_EQ(CommandChannel::name(Command::checkForUpdates), "checkForUpdates");
}

TEST_F(CommandChannelTest, ParsesEachCommandByName) {
    for (Command c : {Command::applySettings, Command::requestAccessibility,
                      Command::setLaunchAtLogin, Command::checkForUpdates}) {
        const auto request = CommandChannel::parse(command(std::string(CommandChannel::name(c))));
        ASSERT_TRUE(request) << CommandChannel::name(c);
        EXPECT_EQ(request->command, c);
    }
}

TEST_F(CommandChannelTest, ANameInAnotherCaseIsIgnored) {
    EXPECT_EQ(CommandChannel::parse(command("ApplySettings")), std::nullopt);
    post(command("ApplySettings"));
    EXPECT_EQ(applied, 0);
}

// The macOS layer hands names over by length, so a NUL inside one reaches the match.
TEST_F(CommandChannelTest, ANameWithAnEmbeddedNulAfterAKnownNameIsIgnored) {
    EXPECT_FALSE(CommandChannel::parse(command(std::string("applySettings\0x", 15))));
    EXPECT_FALSE(CommandChannel::parse(command(std::string("applySettings\0", 14))));
}

TEST_F(CommandChannelTest, MalformedNotificationsAreDroppedSilently) {
    channel.listen();
    post(std::nullopt);
    post(DefaultsValue::Dictionary{});
    post(DefaultsValue::Dictionary{{"value", true}});
    post(command(true));
    post(command(DefaultsValue::Array{"applySettings"}));
    post(command("applySettings "));
    EXPECT_EQ(applied, 0);
    EXPECT_TRUE(desktop.systemLog().lines().empty());
}

TEST_F(CommandChannelTest, ApplySettingsPostedByTheSettingsAppReachesTheStatusItem) {
    channel.listen();
    post(command("applySettings"));
    EXPECT_EQ(applied, 1);
}

TEST_F(CommandChannelTest, ApplySettingsBeforeTheStatusMenuExistsDoesNothing) {
    CommandChannel early{nullptr};
    early.listen();
    post(command("applySettings"));
    EXPECT_TRUE(desktop.systemLog().lines().empty());
}

TEST_F(CommandChannelTest, RequestAccessibilityPromptsAndOpensThePrivacyPane) {
    desktop.trusted = false;
    channel.listen();
    post(command("requestAccessibility"));
    EXPECT_EQ(desktop.trustPrompts, 1);
    EXPECT_EQ(desktop.workspace().openedURLs, (std::vector{std::string(AccessibilityPane::url)}));
}

TEST_F(CommandChannelTest, SetLaunchAtLoginWithTrueRegistersTheLoginItem) {
    channel.listen();
    post(DefaultsValue::Dictionary{{"command", "setLaunchAtLogin"}, {"value", true}});
    EXPECT_TRUE(loginItemRegistered());
}

TEST_F(CommandChannelTest, SetLaunchAtLoginWithoutValueTurnsItOff) {
    desktop.loginItem().setStatus(LoginItemStatus::enabled);
    channel.listen();
    post(command("setLaunchAtLogin"));
    EXPECT_FALSE(loginItemRegistered());
}

TEST_F(CommandChannelTest, SetLaunchAtLoginWithAValueThatIsNotABooleanTurnsItOff) {
    desktop.loginItem().setStatus(LoginItemStatus::enabled);
    channel.listen();
    post(DefaultsValue::Dictionary{{"command", "setLaunchAtLogin"}, {"value", "yes"}});
    EXPECT_FALSE(loginItemRegistered());
}

TEST_F(CommandChannelTest, CheckForUpdatesBringsTheAgentToTheFrontThenChecks) {
    desktop.infoDictionary().values[std::string(Updates::publicKeyInfoKey)] =
        std::string(Updates::publicKeyLength, 'k');
    channel.listen();
    post(command("checkForUpdates"));
    EXPECT_EQ(desktop.application().activations(), 1);
    EXPECT_EQ(desktop.updates().record.checks, 1);
}

TEST_F(CommandChannelTest, ANotificationAfterTheChannelIsGoneFindsNothing) {
    auto gone = std::make_unique<CommandChannel>([this] { ++applied; });
    gone->listen();
    gone.reset();
    post(command("applySettings"));
    EXPECT_EQ(applied, 0);
}

}  // namespace
}  // namespace vistrel
