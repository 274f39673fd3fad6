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

class AgentMainTest : public testing::SimTest {
  protected:
    int run(std::vector<std::string> arguments) {
        desktop.launch().commandLine = std::move(arguments);
        return AgentMain::run(out, {.capture =
                                        [this](const MissionControlCapture::Request& request) {
                                            capturedTo = request.path;
                                            return capturedStatus;
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

}  // namespace
}  // namespace vistrel
