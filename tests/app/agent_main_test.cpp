#include "app/agent_main.h"

#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <string>

#include "diagnostics/diagnostics.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

constexpr int exitedFromTheEventLoop = 7;
constexpr int capturedStatus = 3;
constexpr int layoutCommandStatus = 5;

class AgentMainTest : public testing::SimTest {
  protected:
    int run(std::vector<std::string> arguments) {
        desktop.launch().commandLine = std::move(arguments);
        return AgentMain::run(out, {.capture =
                                        [this](const MissionControlCapture::Request& request) {
                                            capturedTo = request.path;
                                            return capturedStatus;
                                        },
                                    .layoutCommand =
                                        [this](const LayoutCommandLine::Invocation& invocation) {
                                            layoutCommand = invocation;
                                            return layoutCommandStatus;
                                        },
                                    .application =
                                        [this] {
                                            ++applicationsRun;
                                            return exitedFromTheEventLoop;
                                        }});
    }

    std::ostringstream out;
    int applicationsRun = 0;
    std::optional<std::string> capturedTo;
    std::optional<LayoutCommandLine::Invocation> layoutCommand;
};

TEST_F(AgentMainTest, DiagnoseAnywhereAmongTheArgumentsPrintsTheTextExactlyAndExitsZero) {
    EXPECT_EQ(run({"/Applications/Vistrel.app/Contents/MacOS/Vistrel", "-NSDocumentRevisions", "NO",
                   "--diagnose"}),
              0);
    EXPECT_EQ(applicationsRun, 0);
    EXPECT_EQ(out.str(), Diagnostics::text());
}

TEST_F(AgentMainTest, DiagnoseMakesNoStatusItem) {
    run({"Vistrel", "--diagnose"});
    EXPECT_TRUE(desktop.statusBar().items().empty());
}

TEST_F(AgentMainTest, WithoutDiagnoseTheApplicationRuns) {
    EXPECT_EQ(run({"Vistrel", "--diagnose-later"}), exitedFromTheEventLoop);
    EXPECT_EQ(applicationsRun, 1);
    EXPECT_TRUE(out.str().empty());
}

TEST_F(AgentMainTest, CaptureRunsTheCaptureToolAndNoApplication) {
    EXPECT_EQ(run({"Vistrel", "--capture-mission-control", "/tmp/mc.json"}), capturedStatus);
    EXPECT_EQ(capturedTo, "/tmp/mc.json");
    EXPECT_EQ(applicationsRun, 0);
}

TEST_F(AgentMainTest, DiagnoseWinsOverCapture) {
    EXPECT_EQ(run({"Vistrel", "--capture-mission-control", "/tmp/mc.json", "--diagnose"}), 0);
    EXPECT_EQ(out.str(), Diagnostics::text());
    EXPECT_EQ(capturedTo, std::nullopt);
    EXPECT_EQ(applicationsRun, 0);
}

TEST_F(AgentMainTest, ALayoutCommandAsksTheAgentAndRunsNoApplication) {
    EXPECT_EQ(run({"Vistrel", "--apply-layout", "Writing Desk"}), layoutCommandStatus);
    EXPECT_EQ(layoutCommand, (LayoutCommandLine::Invocation{CommandChannel::Command::applyLayout,
                                                            "Writing Desk"}));
    EXPECT_EQ(applicationsRun, 0);
    EXPECT_TRUE(desktop.statusBar().items().empty());
}

TEST_F(AgentMainTest, DiagnoseAndCaptureWinOverALayoutCommand) {
    EXPECT_EQ(run({"Vistrel", "--list-layouts", "--diagnose"}), 0);
    EXPECT_EQ(run({"Vistrel", "--list-layouts", "--capture-mission-control", "/tmp/mc.json"}),
              capturedStatus);
    EXPECT_EQ(layoutCommand, std::nullopt);
}

}  // namespace
}  // namespace vistrel
