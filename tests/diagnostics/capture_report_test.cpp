#include "app/capture_report.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "diagnostics/report_problem.h"
#include "platform/sim/sim_scene.h"
#include "report_test.h"
#include "tracking/health.h"
#include "tracking/mission_control_capture.h"
#include "zip_entries.h"

namespace vistrel {
namespace {

namespace fs = std::filesystem;
using testing::fileInReport;

constexpr std::size_t captureButton = 0;
constexpr std::size_t cancelButton = 1;
const std::string captureName(CaptureReport::fileName);

class CaptureReportTest : public testing::ReportTest {
  protected:
    CaptureReportTest() { populateDefaultScene(desktop); }

    void answerCapture(bool withTitles) {
        desktop.alert().answers.push_back(captureButton);
        desktop.alert().ticks.push_back(withTitles);
        desktop.reportDialog().answers.push_back(
            {ReportProblem::saveButton, "No buttons appear", ""});
    }
    // Mission Control opens a little later, and the capture has its time to settle.
    void openMissionControlSoon() {
        desktop.executor().advance(3);
        desktop.dock().open();
        desktop.executor().advance(3);
        desktop.executor().runUntilIdle();
    }
};

TEST_F(CaptureReportTest, ACaptureTakenAtTheNextOpeningGoesIntoTheReportWithoutTitles) {
    answerCapture(false);
    CaptureReport::start();
    ASSERT_EQ(desktop.alert().checkboxes, std::vector<std::string>{"Include window titles"});
    EXPECT_TRUE(Health::shared().captureWaiting());
    EXPECT_TRUE(desktop.reportDialog().shown.empty()) << "not before Mission Control opened";
    openMissionControlSoon();

    ASSERT_EQ(desktop.reportDialog().shown.size(), 1u);
    EXPECT_TRUE(
        desktop.reportDialog().shown[0].alert.text.ends_with(ReportProblem::Text::withCapture));
    EXPECT_FALSE(Health::shared().captureWaiting());
    const std::vector<fs::path> made = archives();
    ASSERT_EQ(made.size(), 1u);
    const auto capture = fileInReport(made[0], captureName);
    ASSERT_TRUE(capture) << "the capture is in the archive";
    EXPECT_NE(capture->find("\"titles\": false"), std::string::npos);
    EXPECT_EQ(capture->find("Start Page"), std::string::npos) << "no window title went in";
    EXPECT_NE(capture->find("mc.display"), std::string::npos);
}

TEST_F(CaptureReportTest, TickingTheBoxKeepsTheWindowTitlesInTheCapture) {
    answerCapture(true);
    CaptureReport::start();
    openMissionControlSoon();
    const std::vector<fs::path> made = archives();
    ASSERT_EQ(made.size(), 1u);
    const auto capture = fileInReport(made[0], captureName);
    ASSERT_TRUE(capture);
    EXPECT_NE(capture->find("Start Page"), std::string::npos);
}

TEST_F(CaptureReportTest, AMissionControlThatNeverOpensSaysSoAndOpensNoReport) {
    answerCapture(false);
    CaptureReport::start();
    desktop.executor().advance(61);
    desktop.executor().runUntilIdle();
    EXPECT_TRUE(desktop.reportDialog().shown.empty());
    ASSERT_EQ(desktop.alert().shown.size(), 2u);
    EXPECT_EQ(desktop.alert().shown[1].title, CaptureReport::Text::neverOpened);
    EXPECT_FALSE(Health::shared().captureWaiting());
}

TEST_F(CaptureReportTest, CancellingTakesNoCapture) {
    desktop.alert().answers.push_back(cancelButton);
    CaptureReport::start();
    openMissionControlSoon();
    EXPECT_FALSE(Health::shared().captureWaiting());
    EXPECT_TRUE(desktop.reportDialog().shown.empty());
    EXPECT_TRUE(archives().empty());
}

TEST_F(CaptureReportTest, ASecondRequestWhileOneWaitsAsksNothing) {
    answerCapture(false);
    CaptureReport::start();
    CaptureReport::start();
    EXPECT_EQ(desktop.alert().shown.size(), 1u);
    // The one capture waits its minute out and ends.
    desktop.executor().advance(MissionControlCapture::waitLimit + 1);
    desktop.executor().runUntilIdle();
    EXPECT_FALSE(Health::shared().captureWaiting());
}

}  // namespace
}  // namespace vistrel
