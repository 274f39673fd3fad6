#include "app/agent_main.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "diagnostics/diagnostics.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

constexpr int exitedFromTheEventLoop = 7;

class AgentMainTest : public testing::SimTest {
  protected:
    int run(std::vector<std::string> arguments) {
        desktop.launch().commandLine = std::move(arguments);
        return AgentMain::run(out, [this] {
            ++applicationsRun;
            return exitedFromTheEventLoop;
        });
    }

    std::ostringstream out;
    int applicationsRun = 0;
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

}  // namespace
}  // namespace vistrel
