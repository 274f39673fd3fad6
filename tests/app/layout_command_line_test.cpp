#include "app/layout_command_line.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/app_delegate.h"
#include "app/layout_commands.h"
#include "layouts/layout_actions_test.h"
#include "layouts/layout_store.h"
#include "settings/preference_key.h"

namespace vistrel {
namespace {

using Command = CommandChannel::Command;
using Invocation = LayoutCommandLine::Invocation;
using Result = LayoutCommandLine::Result;
using Arguments = std::vector<std::string>;

constexpr UnitRect leftHalf{0, 0, 0.5, 1};

// The command line and the agent on one simulated desktop: the agent runs, or does not, or
// is listed as running but never answers (hung, or not listening yet), or says it is at
// work and never finishes.
class LayoutCommandLineTest : public testing::LayoutActionsTest {
  protected:
    enum class Agent { running, notRunning, listedButSilent, acceptsButNeverFinishes };

    void startAgent(Agent agent) {
        if (agent == Agent::notRunning) return;
        SimApplication copy;
        copy.bundleIdentifier = *desktop.bundle.identifier;
        copy.name = "Vistrel";
        desktop.addApplication(copy);
        if (agent == Agent::running) {
            channel_ = std::make_unique<CommandChannel>([] {}, LayoutCommands::perform);
        } else if (agent == Agent::acceptsButNeverFinishes) {
            channel_ =
                std::make_unique<CommandChannel>([] {}, [](const CommandChannel::Request&) {});
        }
        if (channel_) channel_->listen();
    }

    // Runs the command line to its end in virtual time; what it printed and its status.
    Result run(const Arguments& arguments, double within = LayoutCommandLine::doneTimeout + 1) {
        const auto invocation = LayoutCommandLine::requested(arguments);
        EXPECT_TRUE(invocation.has_value());
        std::optional<Result> result;
        int finished = 0;
        LayoutCommandLine::start(*invocation, [&](Result r) {
            result = std::move(r);
            ++finished;
        });
        desktop.executor().runUntilIdle();
        desktop.executor().advance(within);
        EXPECT_EQ(finished, 1) << "the command line must finish exactly once";
        return result.value_or(Result{-1, {}, "did not finish"});
    }

    void store(const std::string& name) {
        LayoutStore::add(
            *Shared::store(),
            layoutOf({{"com.apple.Notes", "Notes", "Notes", leftHalf, std::nullopt}}, name));
    }
    std::vector<std::string> storedNames() {
        std::vector<std::string> names;
        for (const SavedLayout& layout : LayoutStore::load(*Shared::store()))
            names.push_back(layout.name);
        return names;
    }

    std::unique_ptr<CommandChannel> channel_;
};

TEST_F(LayoutCommandLineTest, TheOptionsAreReadWithTheArgumentAfterThemAsTheName) {
    EXPECT_EQ(LayoutCommandLine::requested({"Vistrel", "--apply-layout", "Writing Desk"}),
              (Invocation{Command::applyLayout, "Writing Desk"}));
    EXPECT_EQ(LayoutCommandLine::requested({"Vistrel", "--save-layout", "--list-layouts"}),
              (Invocation{Command::saveLayout, "--list-layouts"}));
    EXPECT_EQ(LayoutCommandLine::requested({"Vistrel", "--list-layouts"}),
              (Invocation{Command::listLayouts, std::nullopt}));
    EXPECT_EQ(LayoutCommandLine::requested({"Vistrel", "--apply-layout"}),
              (Invocation{Command::applyLayout, std::nullopt}));
    EXPECT_EQ(LayoutCommandLine::requested({"Vistrel", "--Apply-Layout", "Desk"}), std::nullopt);
    EXPECT_EQ(LayoutCommandLine::requested({"Vistrel"}), std::nullopt);
}

TEST_F(LayoutCommandLineTest, ApplyRestoresTheLayoutInTheRunningAgentAndExitsZero) {
    store("Desk");
    startAgent(Agent::running);

    EXPECT_EQ(run({"Vistrel", "--apply-layout", "Desk"}),
              (Result{0, {"restored \"Desk\", 1 of 1 windows"}, ""}));
    EXPECT_EQ(window("Notes").frame, (Rect{0, 25, 720, 805}));
    EXPECT_EQ(logged("layouts: restoring \"Desk\" from the command line"), 1u);
}

TEST_F(LayoutCommandLineTest, ApplyWithAnUnknownNameExitsOneSayingWhy) {
    store("Desk");
    startAgent(Agent::running);
    const Rect before = window("Notes").frame;

    EXPECT_EQ(run({"Vistrel", "--apply-layout", "desk"}),
              (Result{1, {}, "no layout named \"desk\""}));
    EXPECT_EQ(window("Notes").frame, before);
}

TEST_F(LayoutCommandLineTest, SaveStoresTheCurrentWindowsInTheRunningAgent) {
    store("Desk");
    startAgent(Agent::running);

    EXPECT_EQ(run({"Vistrel", "--save-layout", "Evening"}),
              (Result{0, {"saved \"Evening\", 6 windows"}, ""}));
    EXPECT_EQ(storedNames(), (Arguments{"Desk", "Evening"}));
}

TEST_F(LayoutCommandLineTest, SaveWithAnEmptyNameExitsOne) {
    startAgent(Agent::running);
    EXPECT_EQ(run({"Vistrel", "--save-layout", ""}), (Result{1, {}, "no name given"}));
    EXPECT_TRUE(storedNames().empty());
}

TEST_F(LayoutCommandLineTest, AnOptionWithoutItsNameExitsOneWithoutAskingTheAgent) {
    startAgent(Agent::running);
    EXPECT_EQ(run({"Vistrel", "--apply-layout"}),
              (Result{1, {}, "--apply-layout needs a layout's name"}));
    EXPECT_EQ(run({"Vistrel", "--save-layout"}),
              (Result{1, {}, "--save-layout needs a layout's name"}));
    EXPECT_TRUE(desktop.notifications().posted.empty());
}

TEST_F(LayoutCommandLineTest, ListPrintsTheAgentsLayoutsOneALineInOrder) {
    store("Desk");
    store("Writing Desk");
    store("Desk");
    startAgent(Agent::running);

    EXPECT_EQ(run({"Vistrel", "--list-layouts"}),
              (Result{0, {"Desk", "Writing Desk", "Desk"}, ""}));
    EXPECT_EQ(desktop.notifications().posted.front().first, "com.quillmarsh.vistrel.command");
}

TEST_F(LayoutCommandLineTest, ListWithNoLayoutsPrintsNothingAndExitsZero) {
    startAgent(Agent::running);
    EXPECT_EQ(run({"Vistrel", "--list-layouts"}), (Result{0, {}, ""}));
}

TEST_F(LayoutCommandLineTest, WithNoAgentListReadsTheSavedLayoutsItself) {
    store("Desk");
    store("Writing Desk");
    startAgent(Agent::notRunning);

    EXPECT_EQ(run({"Vistrel", "--list-layouts"}), (Result{0, {"Desk", "Writing Desk"}, ""}));
    EXPECT_TRUE(desktop.notifications().posted.empty());
}

TEST_F(LayoutCommandLineTest, WithNoAgentApplyAndSaveSayVistrelIsNotRunning) {
    store("Desk");
    startAgent(Agent::notRunning);
    const Rect before = window("Notes").frame;

    EXPECT_EQ(run({"Vistrel", "--apply-layout", "Desk"}),
              (Result{1, {}, "Vistrel is not running"}));
    EXPECT_EQ(run({"Vistrel", "--save-layout", "Evening"}),
              (Result{1, {}, "Vistrel is not running"}));
    EXPECT_EQ(window("Notes").frame, before);
    EXPECT_EQ(storedNames(), (Arguments{"Desk"}));
}

// The command line is itself a process of the agent's bundle; macOS may list it among the
// running applications (it does once a process connects to the window server).
TEST_F(LayoutCommandLineTest, TheCommandLineDoesNotTakeItselfForTheAgent) {
    SimApplication self;
    self.pid = desktop.ownPid;
    self.bundleIdentifier = *desktop.bundle.identifier;
    desktop.addApplication(self);

    EXPECT_FALSE(LayoutCommandLine::agentRunning());
    EXPECT_EQ(run({"Vistrel", "--apply-layout", "Desk"}),
              (Result{1, {}, "Vistrel is not running"}));
}

TEST_F(LayoutCommandLineTest, AnAgentThatHasQuitDoesNotCountAsRunning) {
    startAgent(Agent::listedButSilent);
    desktop.workspace().forceTerminate(desktop.applications().back().pid);
    EXPECT_FALSE(LayoutCommandLine::agentRunning());
}

TEST_F(LayoutCommandLineTest, AnAgentThatNeverAnswersTimesOutAfterFiveSeconds) {
    store("Desk");
    startAgent(Agent::listedButSilent);

    EXPECT_EQ(run({"Vistrel", "--apply-layout", "Desk"}, LayoutCommandLine::acceptTimeout),
              (Result{1, {}, "Vistrel did not answer"}));
}

TEST_F(LayoutCommandLineTest, AnAgentThatIsNotListeningYetTimesOutToo) {
    startAgent(Agent::running);
    desktop.notifications().dropsPosts = true;
    EXPECT_EQ(run({"Vistrel", "--list-layouts"}, LayoutCommandLine::acceptTimeout),
              (Result{1, {}, "Vistrel did not answer"}));
}

TEST_F(LayoutCommandLineTest, AnAgentAtWorkIsWaitedForPastTheFirstTimeOutThenGivenUp) {
    startAgent(Agent::acceptsButNeverFinishes);
    std::optional<Result> result;
    LayoutCommandLine::start({Command::applyLayout, "Desk"}, [&](Result r) { result = r; });
    desktop.executor().runUntilIdle();

    desktop.executor().advance(LayoutCommandLine::acceptTimeout + 1);
    EXPECT_EQ(result, std::nullopt);
    desktop.executor().advance(LayoutCommandLine::doneTimeout);
    EXPECT_EQ(result, (Result{1, {}, "Vistrel did not finish in time"}));
}

TEST_F(LayoutCommandLineTest, AnAnswerToAnotherRequestIsNotTakenForThisOne) {
    startAgent(Agent::listedButSilent);
    std::optional<Result> result;
    LayoutCommandLine::start({Command::listLayouts, std::nullopt}, [&](Result r) { result = r; });
    CommandChannel::answer("someone else's", {true, "", {"Desk"}});
    desktop.executor().runUntilIdle();
    EXPECT_EQ(result, std::nullopt);
    desktop.executor().advance(LayoutCommandLine::acceptTimeout);
    EXPECT_EQ(result, (Result{1, {}, "Vistrel did not answer"}));
}

TEST_F(LayoutCommandLineTest, ALateAnswerAfterTheTimeOutChangesNothing) {
    startAgent(Agent::listedButSilent);
    std::vector<Result> results;
    LayoutCommandLine::start({Command::listLayouts, std::nullopt},
                             [&](Result r) { results.push_back(r); });
    desktop.executor().runUntilIdle();
    desktop.executor().advance(LayoutCommandLine::acceptTimeout);
    const auto& [name, userInfo] = desktop.notifications().posted.front();
    const auto request = CommandChannel::parse(userInfo);
    ASSERT_TRUE(request);
    CommandChannel::answer(request->reply, {true, "", {"Desk"}});
    desktop.executor().runUntilIdle();
    EXPECT_EQ(results, (std::vector<Result>{{1, {}, "Vistrel did not answer"}}));
}

TEST_F(LayoutCommandLineTest, TheLaunchedAgentAnswersTheCommandLine) {
    store("Desk");
    setPreference(PreferenceKey::onboardingCompleted, true);
    startAgent(Agent::listedButSilent);
    AppDelegate agent;
    agent.applicationDidFinishLaunching();
    advance(1);

    EXPECT_EQ(run({"Vistrel", "--list-layouts"}), (Result{0, {"Desk"}, ""}));
    EXPECT_EQ(run({"Vistrel", "--apply-layout", "Desk"}),
              (Result{0, {"restored \"Desk\", 1 of 1 windows"}, ""}));
}

}  // namespace
}  // namespace vistrel
