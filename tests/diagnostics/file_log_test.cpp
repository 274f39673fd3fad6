#include "base/file_log.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "platform/sim/sim_desktop.h"
#include "support/temp_dir.h"

namespace vistrel {
namespace {

namespace fs = std::filesystem;
using testing::readFile;
using testing::TempDir;

// 2026-11-15T03:19:02.123Z
constexpr double sampleTime = 1'794'712'742.123;
constexpr std::size_t stampLength = 24;  // "2026-11-15T03:19:02.123Z"

class FileLogTest : public ::testing::Test {
  protected:
    FileLog makeLog(std::uintmax_t maxBytes = FileLog::defaultMaxBytes) {
        return FileLog("Vistrel", home.path(), desktop.executor(), desktop.clock(),
                       desktop.fileWriter(), maxBytes,
                       [this](std::string_view failure) { failures.emplace_back(failure); });
    }
    void drain() { desktop.executor().runUntilIdle(); }
    void fill(const fs::path& file, std::size_t bytes) {
        fs::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << std::string(bytes - 1, 'x') << '\n';
    }

    TempDir home;
    SimDesktop desktop;
    std::vector<std::string> failures;
};

TEST_F(FileLogTest, FirstLineCreatesTheLogsFolderAndTheFile) {
    FileLog log = makeLog();
    EXPECT_FALSE(fs::exists(home.path() / "Library/Logs/Vistrel"));
    log.write("INFO", "hello");
    log.flush();
    EXPECT_TRUE(fs::is_directory(home.path() / "Library/Logs/Vistrel"));
    EXPECT_TRUE(fs::exists(home.path() / "Library/Logs/Vistrel/Vistrel.log"));
    EXPECT_EQ(log.current(), home.path() / "Library/Logs/Vistrel/Vistrel.log");
    EXPECT_EQ(log.previous(), home.path() / "Library/Logs/Vistrel/Vistrel.1.log");
}

TEST_F(FileLogTest, LineIsTimestampLevelWordAndMessage) {
    desktop.clock().advanceTo(sampleTime);
    FileLog log = makeLog();
    log.write("INFO", "layouts: composing cancelled, Mission Control closed");
    log.write("ERROR", "something broke");
    log.flush();
    EXPECT_EQ(readFile(log.current()),
              "2026-11-15T03:19:02.123Z INFO layouts: composing cancelled, Mission Control closed\n"
              "2026-11-15T03:19:02.123Z ERROR something broke\n");
}

TEST_F(FileLogTest, WriteHandsTheLineToTheQueueWithoutTouchingTheFile) {
    FileLog log = makeLog();
    log.write("INFO", "deferred");
    EXPECT_FALSE(fs::exists(log.current()));
    EXPECT_EQ(desktop.executor().queue(std::string(FileLog::queueLabel))->pending(), 1u);
    log.flush();
    EXPECT_TRUE(fs::exists(log.current()));
}

TEST_F(FileLogTest, EachLineReachesTheFileWhenTheQueueRunsItWithoutAFlush) {
    FileLog log = makeLog();
    log.write("INFO", "first");
    drain();
    // Another reader, as after a crash or a force-quit: no flush, the log still open.
    EXPECT_NE(readFile(log.current()).find("INFO first\n"), std::string::npos);
    log.write("INFO", "second");
    drain();
    EXPECT_NE(readFile(log.current()).find("INFO second\n"), std::string::npos);
}

TEST_F(FileLogTest, FullDiskLosesTheNewLinesAndKeepsTheOnesWrittenBefore) {
    FileLog log = makeLog();
    log.write("INFO", "kept");
    drain();
    desktop.fileWriter().setDiskFull(true);
    log.write("INFO", "lost");
    drain();
    desktop.fileWriter().setDiskFull(false);
    log.write("INFO", "after");
    drain();
    const std::string text = readFile(log.current());
    EXPECT_NE(text.find("INFO kept\n"), std::string::npos);
    EXPECT_EQ(text.find("lost"), std::string::npos);
    EXPECT_NE(text.find("INFO after\n"), std::string::npos);
}

TEST_F(FileLogTest, FullDiskIsReportedOnceForARunOfFailedLines) {
    FileLog log = makeLog();
    desktop.fileWriter().setDiskFull(true);
    log.write("INFO", "one");
    log.write("INFO", "two");
    log.write("INFO", "three");
    drain();
    ASSERT_EQ(failures.size(), 1u);
    EXPECT_EQ(failures[0], "file log: cannot write Vistrel.log (No space left on device)");
}

TEST_F(FileLogTest, FullDiskIsReportedAgainAfterALineWasWritten) {
    FileLog log = makeLog();
    desktop.fileWriter().setDiskFull(true);
    log.write("INFO", "lost");
    drain();
    desktop.fileWriter().setDiskFull(false);
    log.write("INFO", "written");
    drain();
    desktop.fileWriter().setDiskFull(true);
    log.write("INFO", "lost again");
    drain();
    EXPECT_EQ(failures.size(), 2u);
}

TEST_F(FileLogTest, LineCrossingTheLimitIsWrittenWholeThenTheFileRotates) {
    FileLog log = makeLog();
    const std::string message = "m";  // with its stamp and level, a 32-byte line
    fill(log.current(), 1'000'020 - (stampLength + message.size() + 7));
    log.write("INFO", message);
    log.flush();
    EXPECT_FALSE(fs::exists(log.current()));
    ASSERT_TRUE(fs::exists(log.previous()));
    EXPECT_EQ(fs::file_size(log.previous()), 1'000'020u);
    const std::string rotated = readFile(log.previous());
    EXPECT_EQ(rotated.substr(rotated.size() - message.size() - 1), message + "\n");

    log.write("INFO", "fresh");
    log.flush();
    EXPECT_EQ(fs::file_size(log.current()), stampLength + std::string(" INFO fresh\n").size());
}

TEST_F(FileLogTest, FileAtTheLimitExactlyDoesNotRotate) {
    FileLog log = makeLog();
    const std::size_t line = stampLength + std::string(" INFO x\n").size();
    fill(log.current(), FileLog::defaultMaxBytes - line);
    log.write("INFO", "x");
    log.flush();
    EXPECT_EQ(fs::file_size(log.current()), FileLog::defaultMaxBytes);
    EXPECT_FALSE(fs::exists(log.previous()));
}

TEST_F(FileLogTest, SecondRotationReplacesTheOlderPreviousFile) {
    FileLog log = makeLog(100);
    log.write("INFO", std::string(100, 'a'));
    log.write("INFO", std::string(100, 'b'));
    log.flush();
    EXPECT_FALSE(fs::exists(log.current()));
    EXPECT_NE(readFile(log.previous()).find(std::string(100, 'b')), std::string::npos);
    EXPECT_EQ(readFile(log.previous()).find('a'), std::string::npos);
}

TEST_F(FileLogTest, FilesListsOnlyTheCurrentFileWhenThereIsNoPrevious) {
    FileLog log = makeLog();
    EXPECT_TRUE(log.files().empty());
    log.write("INFO", "one");
    log.flush();
    EXPECT_EQ(log.files(), std::vector<fs::path>{log.current()});
}

TEST_F(FileLogTest, FilesListsThePreviousFileFirst) {
    FileLog log = makeLog(60);
    log.write("INFO", "first line, long enough to rotate");
    log.write("INFO", "second");
    log.flush();
    EXPECT_EQ(log.files(), (std::vector<fs::path>{log.previous(), log.current()}));
}

TEST_F(FileLogTest, EightThreadsReachTheFileWholeOnceEachAndInEachThreadsOrder) {
    constexpr int threads = 8;
    constexpr int linesPerThread = 10'000;
    FileLog log = makeLog(std::uintmax_t{1} << 40);
    std::vector<std::thread> writers;
    for (int t = 0; t < threads; ++t) {
        writers.emplace_back([&log, t] {
            for (int i = 0; i < linesPerThread; ++i) {
                log.write("INFO", "thread " + std::to_string(t) + " line " + std::to_string(i));
            }
        });
    }
    for (auto& writer : writers)
        writer.join();
    log.flush();

    std::istringstream file(readFile(log.current()));
    std::map<int, int> nextLine;
    std::string line;
    int total = 0;
    while (std::getline(file, line)) {
        int t = -1;
        int i = -1;
        ASSERT_EQ(std::sscanf(line.c_str() + stampLength, " INFO thread %d line %d", &t, &i), 2)
            << line;
        ASSERT_EQ(i, nextLine[t]) << "thread " << t << " out of order or duplicated";
        nextLine[t] = i + 1;
        ++total;
    }
    EXPECT_EQ(total, threads * linesPerThread);
    for (int t = 0; t < threads; ++t)
        EXPECT_EQ(nextLine[t], linesPerThread);
}

TEST_F(FileLogTest, UncreatableFolderLosesTheLinesWithoutFailing) {
    const fs::path blocker = home.path() / "Library";
    std::ofstream(blocker) << "a file where the folder should be";
    FileLog log = makeLog();
    log.write("INFO", "lost");
    log.flush();
    log.write("INFO", "lost again");
    log.flush();
    EXPECT_TRUE(log.files().empty());
    EXPECT_TRUE(fs::is_regular_file(blocker));
    EXPECT_EQ(failures.size(), 1u) << "one line for the run of failures";
}

TEST_F(FileLogTest, LogFreedWithLinesPendingStillWritesThem) {
    fs::path current;
    {
        FileLog log = makeLog();
        current = log.current();
        log.write("INFO", "outlives the log");
    }
    desktop.executor().runUntilIdle();
    EXPECT_NE(readFile(current).find("outlives the log"), std::string::npos);
}

}  // namespace
}  // namespace vistrel
