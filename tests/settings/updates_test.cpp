#include "settings/updates.h"

#include <gtest/gtest.h>

#include <string>

#include "support/sim_test.h"

namespace vistrel {
namespace {

const std::string validKey(Updates::publicKeyLength, 'k');

class UpdatesTest : public testing::SimTest {
  protected:
    void setKey(std::string key) {
        desktop.infoDictionary().values[std::string(Updates::publicKeyInfoKey)] = std::move(key);
    }
    std::size_t logged(std::string_view line) { return desktop.systemLog().count(line); }
    SimUpdaterRecord& record() { return desktop.updates().record; }
};

TEST_F(UpdatesTest, AKeyOfFortyFourCharactersMakesTheUpdater) {
    setKey(validKey);
    EXPECT_NE(Updates::updater(), nullptr);
    EXPECT_EQ(record().made, 1);
    EXPECT_EQ(logged("updates: off, no Sparkle public key in this build"), 0u);
}

TEST_F(UpdatesTest, AKeyOfFortyThreeCharactersTurnsUpdatesOff) {
    setKey(std::string(Updates::publicKeyLength - 1, 'k'));
    EXPECT_EQ(Updates::updater(), nullptr);
    EXPECT_EQ(record().made, 0);
    EXPECT_EQ(logged("updates: off, no Sparkle public key in this build"), 1u);
}

TEST_F(UpdatesTest, AKeyOfFortyFiveCharactersTurnsUpdatesOff) {
    setKey(std::string(Updates::publicKeyLength + 1, 'k'));
    EXPECT_EQ(Updates::updater(), nullptr);
    EXPECT_EQ(logged("updates: off, no Sparkle public key in this build"), 1u);
}

TEST_F(UpdatesTest, AMissingKeyTurnsUpdatesOffAndSaysSoOnce) {
    EXPECT_EQ(Updates::updater(), nullptr);
    Updates::start();
    Updates::checkForUpdates();
    EXPECT_EQ(logged("updates: off, no Sparkle public key in this build"), 1u);
    EXPECT_EQ(record().made, 0);
}

TEST_F(UpdatesTest, StartingLogsTheFeedItChecks) {
    setKey(validKey);
    Updates::start();
    EXPECT_EQ(record().starts, 1);
    EXPECT_EQ(logged("updates: checking https://updates.example.com/appcast.xml"), 1u);
}

TEST_F(UpdatesTest, AFailedStartIsLoggedAsAnError) {
    setKey(validKey);
    record().startError = "The feed URL is not secure.";
    Updates::start();
    ASSERT_EQ(desktop.systemLog().lines().size(), 1u);
    EXPECT_EQ(desktop.systemLog().lines().front().level, LogLevel::error);
    EXPECT_EQ(logged("updates: could not start: The feed URL is not secure."), 1u);
}

TEST_F(UpdatesTest, TheUserVisibleCheckReachesTheUpdater) {
    setKey(validKey);
    Updates::checkForUpdates();
    EXPECT_EQ(record().checks, 1);
}

TEST_F(UpdatesTest, TogglingAutomaticInstallationTwiceLogsOnThenOff) {
    setKey(validKey);
    Updates::setInstallsAutomatically(true);
    EXPECT_TRUE(Updates::installsAutomatically());
    Updates::setInstallsAutomatically(false);
    EXPECT_FALSE(Updates::installsAutomatically());
    EXPECT_EQ(desktop.systemLog().messages(),
              (std::vector<std::string>{"updates: install automatically on",
                                        "updates: install automatically off"}));
}

TEST_F(UpdatesTest, WithoutAnUpdaterAutomaticInstallationIsOff) {
    Updates::setInstallsAutomatically(true);
    EXPECT_FALSE(Updates::installsAutomatically());
    EXPECT_EQ(logged("updates: install automatically on"), 0u);
}

}  // namespace
}  // namespace vistrel
