#include "base/log.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "base/file_log.h"
#include "platform/sim/sim_desktop.h"
#include "support/temp_dir.h"

namespace vistrel {
namespace {

namespace fs = std::filesystem;
using testing::readFile;
using testing::TempDir;

// Points HOME at a folder of the test's own for the test's lifetime.
class LogTest : public ::testing::Test {
  protected:
    LogTest() : savedHome_(std::getenv("HOME")) { setenv("HOME", home.path().c_str(), 1); }
    ~LogTest() override { setenv("HOME", savedHome_.c_str(), 1); }

    TempDir home;
    std::string savedHome_;
};

TEST_F(LogTest, InfoGoesToTheSystemLogAndTheFile) {
    SimDesktop desktop;
    ScopedPlatform installed(desktop);
    Log::info("mission control appeared");
    Log::file().flush();
    ASSERT_EQ(desktop.systemLog().lines().size(), 1u);
    const SimLogLine line = desktop.systemLog().lines().front();
    EXPECT_EQ(line.message, "mission control appeared");
    EXPECT_EQ(line.level, LogLevel::info);
    EXPECT_EQ(line.subsystem, "com.quillmarsh.vistrel");
    EXPECT_EQ(line.category, "core");
    const std::string file = readFile(home.path() / "Library/Logs/Vistrel/Vistrel.log");
    EXPECT_NE(file.find(" INFO mission control appeared\n"), std::string::npos);
}

TEST_F(LogTest, ErrorIsWrittenWithTheErrorLevel) {
    SimDesktop desktop;
    ScopedPlatform installed(desktop);
    Log::error("could not save");
    Log::file().flush();
    EXPECT_EQ(desktop.systemLog().lines().front().level, LogLevel::error);
    EXPECT_NE(readFile(Log::file().current()).find(" ERROR could not save\n"), std::string::npos);
}

TEST_F(LogTest, SubsystemFallsBackWhenTheBundleHasNoIdentifier) {
    SimDesktop desktop;
    desktop.bundle.identifier.reset();
    ScopedPlatform installed(desktop);
    Log::info("no bundle");
    EXPECT_EQ(desktop.systemLog().lines().front().subsystem, "com.quillmarsh.vistrel");
}

TEST_F(LogTest, SystemLogStillGetsLinesTheFileCannotTake) {
    std::ofstream(home.path() / "Library") << "not a folder";
    SimDesktop desktop;
    ScopedPlatform installed(desktop);
    Log::info("kept in the system log");
    Log::file().flush();
    EXPECT_EQ(desktop.systemLog().count("kept in the system log"), 1u);
    EXPECT_TRUE(Log::file().files().empty());
}

TEST_F(LogTest, LoggingHandsOffWithoutRunningTheFileQueue) {
    SimDesktop desktop;
    ScopedPlatform installed(desktop);
    Log::info("queued");
    EXPECT_FALSE(fs::exists(Log::file().current()));
    EXPECT_EQ(desktop.executor().queue(std::string(FileLog::queueLabel))->pending(), 1u);
}

}  // namespace
}  // namespace vistrel
