#include "diagnostics/report_problem.h"

#include <gtest/gtest.h>

#include <string>

#include "base/file_log.h"
#include "base/log.h"
#include "report_test.h"
#include "zip_entries.h"

namespace vistrel {
namespace {

namespace fs = std::filesystem;
using testing::fileInReport;
using testing::readFile;

class ReportProblemTest : public testing::ReportTest {
  protected:
    void answer(ReportProblem::Button button, std::string note = "It froze",
                std::string email = "") {
        desktop.reportDialog().answers.push_back({button, std::move(note), std::move(email)});
    }
    std::string logText() {
        Log::file().flush();
        return readFile(logs() / "Vistrel.log");
    }
};

TEST_F(ReportProblemTest, DialogHasItsTitleTextButtonsAndPlaceholder) {
    ReportProblem::show();
    ASSERT_EQ(desktop.reportDialog().shown.size(), 1u);
    const ReportDialogContent& dialog = desktop.reportDialog().shown.front();
    EXPECT_EQ(dialog.alert.title, "Report a Problem");
    EXPECT_EQ(dialog.alert.text,
              "Describe what happened. The report includes Vistrel's log, your macOS version, "
              "display setup and permission state, and recent crash reports of Vistrel. It does "
              "not include window contents or your files, though the log can name apps and "
              "windows you acted on.");
    EXPECT_EQ(dialog.alert.buttons,
              (std::vector<std::string>{"Send Report", "Save to File…", "Cancel"}));
    EXPECT_EQ(dialog.emailPlaceholder, "Your email, if you'd like a reply");
}

TEST_F(ReportProblemTest, CancelDoesNothing) {
    answer(ReportProblem::cancelButton);
    ReportProblem::show();
    desktop.executor().runUntilIdle();
    EXPECT_TRUE(desktop.systemLog().lines().empty());
    EXPECT_TRUE(archives().empty());
    EXPECT_TRUE(desktop.alert().shown.empty());
    EXPECT_TRUE(desktop.savePanel().proposedNames.empty());
    EXPECT_TRUE(desktop.uploader().requests.empty());
}

TEST_F(ReportProblemTest, SendingLogsAndFlushesBeforeTheArchiveIsBuilt) {
    pointServiceAt("ftp://nowhere");  // the upload itself is not this test's business
    answer(ReportProblem::sendButton);
    ReportProblem::show();
    ASSERT_EQ(archives().size(), 1u);
    const auto log = fileInReport(archives().front(), "Vistrel.log");
    ASSERT_TRUE(log.has_value());
    EXPECT_TRUE(log->ends_with(" INFO report a problem: sending\n")) << *log;
    EXPECT_EQ(desktop.uploader().requests.size(), 0u);
}

TEST_F(ReportProblemTest, SavingLogsSavingAndOffersTheArchivesName) {
    answer(ReportProblem::saveButton);
    ReportProblem::show();
    EXPECT_NE(logText().find(" INFO report a problem: saving\n"), std::string::npos);
    ASSERT_EQ(desktop.savePanel().proposedNames.size(), 1u);
    EXPECT_EQ(desktop.savePanel().proposedNames.front(), archives().front().filename().string());
    EXPECT_TRUE(desktop.uploader().requests.empty());
}

TEST_F(ReportProblemTest, SavingCopiesTheArchiveToTheChosenPlace) {
    const fs::path place = home() / "Desktop/report.zip";
    fs::create_directories(place.parent_path());
    desktop.savePanel().answers.push_back(place.string());
    answer(ReportProblem::saveButton, "note", "ada@example.com");
    ReportProblem::show();
    ASSERT_TRUE(fs::exists(place));
    EXPECT_EQ(readFile(place), readFile(archives().front()));
    EXPECT_TRUE(desktop.alert().shown.empty());
}

TEST_F(ReportProblemTest, SavingReplacesAnExistingFile) {
    const fs::path place = writeFile(home() / "Desktop/report.zip", "an older report");
    desktop.savePanel().answers.push_back(place.string());
    answer(ReportProblem::saveButton);
    ReportProblem::show();
    EXPECT_EQ(readFile(place), readFile(archives().front()));
}

TEST_F(ReportProblemTest, CancelledSavePanelLeavesNothingBehind) {
    answer(ReportProblem::saveButton);
    ReportProblem::show();
    EXPECT_EQ(desktop.savePanel().proposedNames.size(), 1u);
    EXPECT_TRUE(desktop.alert().shown.empty());
    EXPECT_FALSE(fs::exists(home() / "Desktop"));
}

TEST_F(ReportProblemTest, FailedCopyShowsWhy) {
    const std::string place = (home() / "report.zip").string();
    desktop.savePanel().answers.push_back(place);
    desktop.files().copyFailures[place] = "You don’t have permission to save the file.";
    answer(ReportProblem::saveButton);
    ReportProblem::show();
    ASSERT_EQ(desktop.alert().shown.size(), 1u);
    EXPECT_EQ(desktop.alert().shown.front().title,
              "Could not save the report: You don’t have permission to save the file.");
    EXPECT_EQ(desktop.alert().shown.front().buttons, std::vector<std::string>{"OK"});
}

TEST_F(ReportProblemTest, ArchiveThatCannotBeBuiltEndsInAnAlert) {
    desktop.archiver().failure = "ditto exited with status 1";
    answer(ReportProblem::sendButton);
    ReportProblem::show();
    ASSERT_EQ(desktop.alert().shown.size(), 1u);
    EXPECT_EQ(desktop.alert().shown.front().title, "Could not put the report together.");
    EXPECT_TRUE(desktop.uploader().requests.empty());
    EXPECT_TRUE(desktop.savePanel().proposedNames.empty());
}

TEST_F(ReportProblemTest, EmailIsTrimmedOfSurroundingSpaces) {
    answer(ReportProblem::saveButton, "note", "  ada@example.com \n");
    ReportProblem::show();
    EXPECT_EQ(fileInReport(archives().front(), "note.txt"), "Email: ada@example.com\n\nnote\n");
}

TEST_F(ReportProblemTest, BlankEmailCountsAsNone) {
    answer(ReportProblem::saveButton, "note", "   ");
    ReportProblem::show();
    EXPECT_EQ(fileInReport(archives().front(), "note.txt"), "Email: (none)\n\nnote\n");
}

}  // namespace
}  // namespace vistrel
