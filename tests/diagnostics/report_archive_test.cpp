#include "diagnostics/report_archive.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <string>

#include "base/file_log.h"
#include "base/log.h"
#include "diagnostics/diagnostics.h"
#include "diagnostics/report_problem.h"
#include "report_test.h"
#include "zip_entries.h"

namespace vistrel {
namespace {

namespace fs = std::filesystem;
using testing::zipEntries;

constexpr double day = 86'400;

class ReportArchiveTest : public testing::ReportTest {
  protected:
    // The archive's entries with the top folder's name taken off, and that name.
    std::map<std::string, std::string> build(const std::string& note = "It froze",
                                             const std::string& email = "ada@example.com") {
        const auto zip = ReportProblem::buildZip(note, email);
        if (!zip) return {};
        archive = *zip;
        std::map<std::string, std::string> inside;
        for (const auto& [name, bytes] : zipEntries(*zip)) {
            const std::size_t slash = name.find('/');
            top.insert(name.substr(0, slash));
            if (slash + 1 < name.size()) inside[name.substr(slash + 1)] = bytes;
        }
        return inside;
    }
    std::set<std::string> names(const std::map<std::string, std::string>& entries) {
        std::set<std::string> result;
        for (const auto& [name, bytes] : entries)
            result.insert(name);
        return result;
    }

    fs::path archive;
    std::set<std::string> top;
};

TEST_F(ReportArchiveTest, WithoutLogFilesTheArchiveHoldsOnlyTheTwoTextFiles) {
    const auto entries = build();
    EXPECT_EQ(names(entries), (std::set<std::string>{"diagnostics.txt", "note.txt"}));
}

TEST_F(ReportArchiveTest, TheReportFolderIsTheArchivesOnlyTopLevelEntry) {
    build();
    ASSERT_EQ(top.size(), 1u);
    EXPECT_TRUE(std::regex_match(
        *top.begin(), std::regex(R"(Vistrel report \d{4}-\d\d-\d\d at \d\d\.\d\d\.\d\d)")))
        << *top.begin();
    EXPECT_EQ(archive.filename(), *top.begin() + ".zip");
    EXPECT_EQ(archive.parent_path().parent_path(), temporary());
    EXPECT_TRUE(archive.parent_path().filename().string().starts_with("report-"));
}

TEST_F(ReportArchiveTest, EveryReportGetsAFreshTemporaryFolder) {
    const auto first = ReportProblem::buildZip("one", "");
    const auto second = ReportProblem::buildZip("two", "");
    ASSERT_TRUE(first && second);
    EXPECT_NE(first->parent_path(), second->parent_path());
}

TEST_F(ReportArchiveTest, DiagnosticsFileIsTheDiagnosticsText) {
    desktop.systemInfo().model = "Mac14,2";
    EXPECT_EQ(build().at("diagnostics.txt"), Diagnostics::text());
    EXPECT_NE(build().at("diagnostics.txt").find("Mac14,2"), std::string::npos);
}

TEST_F(ReportArchiveTest, NoteFileStartsWithTheEmailThenABlankLine) {
    EXPECT_EQ(build("The shelf vanished.", "ada@example.com").at("note.txt"),
              "Email: ada@example.com\n\nThe shelf vanished.\n");
}

TEST_F(ReportArchiveTest, EmptyEmailIsWrittenAsNone) {
    EXPECT_EQ(build("Hello", "").at("note.txt"), "Email: (none)\n\nHello\n");
}

TEST_F(ReportArchiveTest, LongNoteIsKeptWholeInTheNoteFile) {
    const std::string note(5000, 'n');
    EXPECT_EQ(build(note, "").at("note.txt"), "Email: (none)\n\n" + note + "\n");
}

TEST_F(ReportArchiveTest, BothLogFilesAreCopiedUnderTheirOwnNames) {
    writeFile(logs() / "Vistrel.1.log", "older lines\n");
    writeFile(logs() / "Vistrel.log", "newer lines\n");
    const auto entries = build();
    EXPECT_EQ(entries.at("Vistrel.1.log"), "older lines\n");
    EXPECT_EQ(entries.at("Vistrel.log"), "newer lines\n");
}

TEST_F(ReportArchiveTest, RecentCrashReportsOfTheAgentAreIncluded) {
    writeFile(crashReports() / "Vistrel-2026-11-14-101010.ips", "crash", 1 * day);
    EXPECT_EQ(build().at("Vistrel-2026-11-14-101010.ips"), "crash");
}

TEST_F(ReportArchiveTest, AnotherAppsCrashReportIsLeftOut) {
    writeFile(crashReports() / "Safari-2026-11-14-101010.ips", "not ours", 1 * day);
    writeFile(crashReports() / "Vistrel Settings-2026-11-14.ips", "ours", 1 * day);
    const auto entries = build();
    EXPECT_FALSE(entries.contains("Safari-2026-11-14-101010.ips"));
    EXPECT_TRUE(entries.contains("Vistrel Settings-2026-11-14.ips"));
}

TEST_F(ReportArchiveTest, CrashReportFromThirtyOneDaysAgoIsLeftOut) {
    writeFile(crashReports() / "Vistrel-old.ips", "old", 31 * day);
    writeFile(crashReports() / "Vistrel-recent.ips", "recent", 29 * day);
    const auto entries = build();
    EXPECT_FALSE(entries.contains("Vistrel-old.ips"));
    EXPECT_TRUE(entries.contains("Vistrel-recent.ips"));
}

TEST_F(ReportArchiveTest, CrashReportExactlyThirtyDaysOldIsLeftOut) {
    writeFile(crashReports() / "Vistrel-edge.ips", "edge", 30 * day);
    EXPECT_TRUE(ReportProblem::recentCrashReports().empty());
}

TEST_F(ReportArchiveTest, AtMostTheFiveNewestCrashReportsNewestFirst) {
    for (int age = 1; age <= 7; ++age)
        writeFile(crashReports() / ("Vistrel-" + std::to_string(age) + ".ips"), "c", age * day);
    std::vector<fs::path> expected;
    for (int age = 1; age <= 5; ++age)
        expected.push_back(crashReports() / ("Vistrel-" + std::to_string(age) + ".ips"));
    EXPECT_EQ(ReportProblem::recentCrashReports(), expected);
}

TEST_F(ReportArchiveTest, MissingCrashReportsFolderMeansNone) {
    EXPECT_TRUE(ReportProblem::recentCrashReports().empty());
}

TEST_F(ReportArchiveTest, ArchiveHoldsOnlyTheNamedFilesAndNothingOfTheUsers) {
    writeFile(logs() / "Vistrel.log", "a line\n");
    writeFile(logs() / "notes.txt", "something else in the log folder");
    writeFile(crashReports() / "Vistrel-1.ips", "crash", day);
    writeFile(crashReports() / "Mail-1.ips", "mail crash", day);
    writeFile(home() / "Documents/Taxes 2026.pdf", "private");
    writeFile(home() / "Desktop/Screenshot 2026-11-14 at 10.10.10.png", "pixels");
    writeFile(home() / "Library/Preferences/com.quillmarsh.vistrel.plist", "prefs");
    writeFile(temporary() / "other-app-scratch.txt", "scratch");
    const auto entries = build();
    EXPECT_EQ(names(entries), (std::set<std::string>{"diagnostics.txt", "note.txt", "Vistrel.log",
                                                     "Vistrel-1.ips"}));
    for (const auto& [name, bytes] : entries) {
        EXPECT_EQ(bytes.find("private"), std::string::npos) << name;
        EXPECT_EQ(bytes.find("pixels"), std::string::npos) << name;
    }
}

TEST_F(ReportArchiveTest, FailingArchiverGivesNothingAndLogsWhy) {
    desktop.archiver().failure = "ditto exited with status 1";
    EXPECT_FALSE(ReportProblem::buildZip("note", "").has_value());
    Log::file().flush();
    EXPECT_NE(testing::readFile(logs() / "Vistrel.log")
                  .find(" ERROR report archive failed: could not zip the report: ditto exited with "
                        "status 1\n"),
              std::string::npos);
}

TEST_F(ReportArchiveTest, UnwritableNoteGivesNothing) {
    desktop.files().writeFailure = "The disk is full.";
    EXPECT_FALSE(ReportProblem::buildZip("note", "").has_value());
    EXPECT_EQ(desktop.archiver().archivesWritten, 0);
}

TEST_F(ReportArchiveTest, CrashReportThatCannotBeCopiedIsLeftOutAndTheRestGoes) {
    const fs::path gone = writeFile(crashReports() / "Vistrel-gone.ips", "crash", day);
    writeFile(crashReports() / "Vistrel-kept.ips", "crash", 2 * day);
    desktop.files().copyFailures[gone.string()] = "The file “Vistrel-gone.ips” doesn’t exist.";
    const auto entries = build();
    EXPECT_FALSE(entries.contains("Vistrel-gone.ips"));
    EXPECT_TRUE(entries.contains("Vistrel-kept.ips"));
    Log::file().flush();
    EXPECT_NE(testing::readFile(logs() / "Vistrel.log")
                  .find(" ERROR report archive: left out Vistrel-gone.ips: The file "
                        "“Vistrel-gone.ips” doesn’t exist.\n"),
              std::string::npos);
}

TEST_F(ReportArchiveTest, NoTemporaryFolderGivesNothing) {
    desktop.files().failTemporaryFolder = true;
    EXPECT_FALSE(ReportProblem::buildZip("note", "").has_value());
}

TEST_F(ReportArchiveTest, FolderNameUsesTheLocalTimeWithoutColons) {
    const std::string name = ReportArchive::folderName(desktop.clock().now());
    EXPECT_TRUE(name.starts_with("Vistrel report 2026-11-1"));
    EXPECT_EQ(name.find(':'), std::string::npos);
}

}  // namespace
}  // namespace vistrel
