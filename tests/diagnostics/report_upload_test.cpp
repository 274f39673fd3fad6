#include <gtest/gtest.h>

#include <string>

#include "base/file_log.h"
#include "base/log.h"
#include "diagnostics/report_problem.h"
#include "platform/sim/sim_report_service.h"
#include "report_test.h"

namespace vistrel {
namespace {

namespace fs = std::filesystem;
using testing::readFile;
using Answer = SimReportService::Answer;

// A hanging server is given up on after this many real seconds instead of a minute.
constexpr double shortTimeout = 0.3;

class ReportUploadTest : public testing::ReportTest {
  protected:
    // Builds an archive and uploads it to the service, then lets the network and the main
    // thread do their work.
    fs::path send(SimReportService& service, const std::string& note, const std::string& email) {
        pointServiceAt(service.baseURL());
        const fs::path zip = *ReportProblem::buildZip(note, email);
        ReportProblem::upload(note, email, zip);
        desktop.executor().runUntilIdle();
        return zip;
    }
    std::string logText() {
        Log::file().flush();
        return readFile(logs() / "Vistrel.log");
    }
    const AlertContent& onlyAlert() {
        EXPECT_EQ(desktop.alert().shown.size(), 1u);
        return desktop.alert().shown.front();
    }
};

TEST_F(ReportUploadTest, ServerReceivesOnePostOfTheArchiveWithItsQuery) {
    SimReportService service(Answer::number);
    desktop.bundle.version = "1.4";
    desktop.systemInfo().version = {15, 1, 2};
    const fs::path zip = send(service, "It froze & then quit", "ada@example.com");
    const auto received = service.received();
    ASSERT_EQ(received.size(), 1u);
    EXPECT_EQ(received[0].method, "POST");
    EXPECT_EQ(received[0].path, "/reports");
    EXPECT_EQ(received[0].query,
              "app=vistrel&version=1.4&os=15.1.2&email=ada%40example.com"
              "&note=It%20froze%20%26%20then%20quit");
    EXPECT_EQ(received[0].contentType, "application/zip");
    EXPECT_EQ(received[0].body, readFile(zip));
}

TEST_F(ReportUploadTest, RequestAsksForASixtySecondTimeout) {
    SimReportService service(Answer::number);
    send(service, "note", "");
    ASSERT_EQ(desktop.uploader().requests.size(), 1u);
    EXPECT_EQ(desktop.uploader().requests.front().timeout, 60);
    EXPECT_EQ(desktop.uploader().requests.front().method, "POST");
}

TEST_F(ReportUploadTest, NumberInTheAnswerIsLoggedAndThankedForWithTheReplyPromise) {
    SimReportService service(Answer::number, R"({"number": 4711})");
    send(service, "note", "ada@example.com");
    EXPECT_EQ(onlyAlert().title,
              "Thank you. Your report number is 4711. We'll reply to ada@example.com. If you "
              "write to support, mention it.");
    EXPECT_NE(logText().find(" INFO Report sent as 4711\n"), std::string::npos);
}

TEST_F(ReportUploadTest, ThanksWithoutAnEmailPromiseNoReply) {
    SimReportService service(Answer::number, R"({"number": "VR-42"})");
    send(service, "note", "");
    EXPECT_EQ(onlyAlert().title,
              "Thank you. Your report number is VR-42. If you write to support, mention it.");
}

TEST_F(ReportUploadTest, EmptyEmailIsSentWithoutAValue) {
    SimReportService service(Answer::number);
    send(service, "note", "");
    EXPECT_NE(service.received().at(0).query.find("&email&note="), std::string::npos);
}

TEST_F(ReportUploadTest, LongNoteIsCutInTheQueryOnly) {
    SimReportService service(Answer::number);
    const std::string note(5000, 'x');
    send(service, note, "");
    const std::string query = service.received().at(0).query;
    EXPECT_TRUE(query.ends_with("&note=" + std::string(2000, 'x')));
}

TEST_F(ReportUploadTest, ServerErrorOffersToSaveTheReportInstead) {
    SimReportService service(Answer::serverError);
    desktop.infoDictionary().values["VistrelSupportAddress"] = "help@quillmarsh.com";
    desktop.alert().answers.push_back(1);  // Cancel
    send(service, "note", "");
    const AlertContent& alert = onlyAlert();
    EXPECT_EQ(alert.title, "The report could not be sent");
    EXPECT_EQ(alert.text, "Save it instead and email it to help@quillmarsh.com.");
    EXPECT_EQ(alert.buttons, (std::vector<std::string>{"Save to File…", "Cancel"}));
    EXPECT_NE(logText().find(" ERROR report upload failed: status 500\n"), std::string::npos);
    EXPECT_TRUE(desktop.savePanel().proposedNames.empty());
}

TEST_F(ReportUploadTest, ServerErrorThenSaveToFileSavesTheArchive) {
    SimReportService service(Answer::serverError);
    const fs::path place = home() / "report.zip";
    desktop.savePanel().answers.push_back(place.string());
    desktop.alert().answers.push_back(0);  // Save to File…
    const fs::path zip = send(service, "note", "");
    EXPECT_EQ(desktop.savePanel().proposedNames, std::vector<std::string>{zip.filename().string()});
    EXPECT_EQ(readFile(place), readFile(zip));
}

TEST_F(ReportUploadTest, ServerThatNeverAnswersTimesOut) {
    SimReportService service(Answer::hang);
    desktop.uploader().timeoutCap = shortTimeout;
    send(service, "note", "");
    EXPECT_EQ(service.received().size(), 1u);
    EXPECT_EQ(onlyAlert().title, "The report could not be sent");
    EXPECT_NE(logText().find(" ERROR report upload failed: The request timed out.\n"),
              std::string::npos);
}

TEST_F(ReportUploadTest, AnswerWithoutANumberCountsAsFailed) {
    SimReportService service(Answer::number, "<html>ok</html>");
    send(service, "note", "");
    EXPECT_EQ(onlyAlert().title, "The report could not be sent");
    EXPECT_NE(logText().find(" ERROR report upload failed: no report number in the answer\n"),
              std::string::npos);
}

TEST_F(ReportUploadTest, TransportErrorIsLoggedWithItsDescription) {
    SimReportService service(Answer::number);
    desktop.uploader().failure = "The Internet connection appears to be offline.";
    send(service, "note", "");
    EXPECT_TRUE(service.received().empty());
    EXPECT_EQ(onlyAlert().title, "The report could not be sent");
    EXPECT_NE(logText().find(
                  " ERROR report upload failed: The Internet connection appears to be offline.\n"),
              std::string::npos);
}

TEST_F(ReportUploadTest, PlainHttpToAnotherHostIsNeverSent) {
    SimReportService service(Answer::number);
    pointServiceAt("http://reports.quillmarsh.com");
    const fs::path zip = *ReportProblem::buildZip("note", "");
    ReportProblem::upload("note", "", zip);
    desktop.executor().runUntilIdle();
    EXPECT_TRUE(desktop.uploader().requests.empty());
    EXPECT_TRUE(service.received().empty());
    EXPECT_EQ(onlyAlert().title, "The report could not be sent");
    EXPECT_NE(logText().find(" ERROR report upload failed: the report service address is not "
                             "https: http://reports.quillmarsh.com\n"),
              std::string::npos);
}

TEST_F(ReportUploadTest, MainThreadIsFreeWhileTheReportIsOnItsWay) {
    SimReportService service(Answer::number);
    pointServiceAt(service.baseURL());
    const fs::path zip = *ReportProblem::buildZip("note", "");
    ReportProblem::upload("note", "", zip);
    desktop.executor().mainQueue().drain();
    EXPECT_TRUE(service.received().empty());
    EXPECT_TRUE(desktop.alert().shown.empty());
    EXPECT_EQ(desktop.executor().queue(std::string(SimUploader::sessionQueueLabel))->pending(), 1u);
    desktop.executor().runUntilIdle();
    EXPECT_EQ(service.received().size(), 1u);
    EXPECT_EQ(desktop.alert().shown.size(), 1u);
}

TEST_F(ReportUploadTest, OutcomeIsShownOnTheMainQueue) {
    SimReportService service(Answer::number);
    pointServiceAt(service.baseURL());
    const fs::path zip = *ReportProblem::buildZip("note", "");
    ReportProblem::upload("note", "", zip);
    desktop.executor().queue(std::string(SimUploader::sessionQueueLabel))->drain();
    EXPECT_TRUE(desktop.alert().shown.empty());
    EXPECT_EQ(desktop.executor().mainQueue().pending(), 1u);
    desktop.executor().mainQueue().drain();
    EXPECT_EQ(desktop.alert().shown.size(), 1u);
}

TEST_F(ReportUploadTest, SendReportFromTheDialogEndsInThanks) {
    SimReportService service(Answer::number, R"({"number": 4711})");
    pointServiceAt(service.baseURL());
    desktop.reportDialog().answers.push_back({ReportProblem::sendButton, "It froze", ""});
    ReportProblem::show();
    desktop.executor().runUntilIdle();
    EXPECT_EQ(service.received().size(), 1u);
    EXPECT_TRUE(onlyAlert().title.starts_with("Thank you. Your report number is 4711."));
}

}  // namespace
}  // namespace vistrel
