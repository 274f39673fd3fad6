#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "settings/command_channel.h"
#include "settings/shared.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

using Command = CommandChannel::Command;
using Dictionary = DefaultsValue::Dictionary;
using Reply = CommandChannel::Reply;
using Answer = CommandChannel::Answer;

class CommandChannelLayoutTest : public testing::SimTest {
  protected:
    void post(const NotificationCenter::UserInfo& userInfo) {
        desktop.notifications().post(std::string(Shared::Command::name), userInfo);
        desktop.executor().runUntilIdle();
    }
    // The replies posted, in order.
    std::vector<Reply> replies() {
        std::vector<Reply> found;
        for (const auto& [name, userInfo] : desktop.notifications().posted) {
            if (name != CommandChannel::replyName) continue;
            const auto reply = CommandChannel::parseReply(userInfo);
            EXPECT_TRUE(reply.has_value()) << "an unreadable reply";
            if (reply) found.push_back(*reply);
        }
        return found;
    }

    std::vector<CommandChannel::Request> handled;
    CommandChannel channel{[] {},
                           [this](const CommandChannel::Request& r) { handled.push_back(r); }};
};

TEST_F(CommandChannelLayoutTest, TheLayoutCommandsHaveTheirExactNames) {
    EXPECT_EQ(CommandChannel::name(Command::applyLayout), "applyLayout");
    EXPECT_EQ(CommandChannel::name(Command::saveLayout), "saveLayout");
    EXPECT_EQ(CommandChannel::name(Command::listLayouts), "listLayouts");
}

TEST_F(CommandChannelLayoutTest, ALayoutCommandCarriesItsNameAndReplyIdentifier) {
    const auto request =
        CommandChannel::parse(CommandChannel::layoutCommand(Command::applyLayout, "Desk", "r1"));
    EXPECT_EQ(request, (CommandChannel::Request{Command::applyLayout, false, "Desk", "r1"}));
}

TEST_F(CommandChannelLayoutTest, ALayoutCommandWithoutAReplyIdentifierIsDroppedSilently) {
    channel.listen();
    post(Dictionary{{"command", "applyLayout"}, {"name", "Desk"}});
    post(Dictionary{{"command", "applyLayout"}, {"name", "Desk"}, {"reply", ""}});
    post(Dictionary{{"command", "listLayouts"}, {"reply", true}});
    EXPECT_TRUE(handled.empty());
    EXPECT_EQ(desktop.notifications().posted.size(), 3u);
    EXPECT_TRUE(desktop.systemLog().lines().empty());
}

TEST_F(CommandChannelLayoutTest, ANameThatIsNotTextArrivesEmptyForTheHandlerToRefuse) {
    const auto request = CommandChannel::parse(Dictionary{
        {"command", "saveLayout"}, {"name", DefaultsValue::Array{"Desk"}}, {"reply", "r"}});
    ASSERT_TRUE(request);
    EXPECT_EQ(request->name, "");
}

TEST_F(CommandChannelLayoutTest, TheAgentSaysAtOnceThatItIsAtWorkThenHandsTheCommandOn) {
    channel.listen();
    post(CommandChannel::layoutCommand(Command::saveLayout, "Desk", "r2"));
    EXPECT_EQ(replies(), (std::vector<Reply>{{"r2", std::nullopt}}));
    ASSERT_EQ(handled.size(), 1u);
    EXPECT_EQ(handled.front().name, "Desk");
}

TEST_F(CommandChannelLayoutTest, WithoutAHandlerTheCommandIsAnsweredThatItCannotBeDone) {
    CommandChannel settingsOnly{[] {}};
    settingsOnly.listen();
    post(CommandChannel::layoutCommand(Command::listLayouts, "", "r3"));
    EXPECT_EQ(replies(),
              (std::vector<Reply>{{"r3", Answer{false, "Vistrel cannot do this now", {}}}}));
}

TEST_F(CommandChannelLayoutTest, AnAnswerReadsBackAsItWasPosted) {
    CommandChannel::answer("r4", {true, "", {"Desk", "Writing Desk", "Caf\u00e9"}});
    CommandChannel::answer("r5", {false, "no layout named \"X\"", {}});
    EXPECT_EQ(replies(),
              (std::vector<Reply>{{"r4", Answer{true, "", {"Desk", "Writing Desk", "Caf\u00e9"}}},
                                  {"r5", Answer{false, "no layout named \"X\"", {}}}}));
}

TEST_F(CommandChannelLayoutTest, MalformedRepliesAreNotRead) {
    for (const NotificationCenter::UserInfo& userInfo : std::vector<NotificationCenter::UserInfo>{
             std::nullopt,
             Dictionary{},
             Dictionary{{"reply", "r"}},
             Dictionary{{"reply", "r"}, {"state", "done"}},
             Dictionary{{"reply", "r"}, {"state", "done"}, {"ok", 1}},
             Dictionary{{"reply", "r"}, {"state", "finished"}, {"ok", true}},
             Dictionary{{"reply", 7}, {"state", "accepted"}},
             Dictionary{{"reply", "r"}, {"state", "done"}, {"ok", true}, {"names", "Desk"}},
             Dictionary{{"reply", "r"},
                        {"state", "done"},
                        {"ok", true},
                        {"names", DefaultsValue::Array{"Desk", 3}}},
         }) {
        EXPECT_EQ(CommandChannel::parseReply(userInfo), std::nullopt);
    }
}

TEST_F(CommandChannelLayoutTest, AReplyWithoutMessageOrNamesReadsThemAsEmpty) {
    EXPECT_EQ(
        CommandChannel::parseReply(Dictionary{{"reply", "r"}, {"state", "done"}, {"ok", true}}),
        (Reply{"r", Answer{true, "", {}}}));
}

}  // namespace
}  // namespace vistrel
