#include "app/move_to_applications.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "support/sim_test.h"
#include "support/temp_dir.h"

namespace vistrel {
namespace {

namespace fs = std::filesystem;
using Buttons = std::vector<std::string>;

// A translocated copy of the agent on the real disk, and an Applications folder beside it.
class MoveToApplicationsTest : public testing::SimTest {
  protected:
    MoveToApplicationsTest() {
        bundle = folder.path() / "private/var/folders/xy/AppTranslocation/1A2B/d/Vistrel.app";
        fs::create_directories(bundle / "Contents/MacOS");
        std::ofstream(bundle / "Contents/MacOS/Vistrel") << "new";
        applications = folder.path() / "Applications";
        fs::create_directories(applications);
        desktop.bundle.path = bundle.string();
        desktop.files().trashDirectory = (folder.path() / "Trash").string();
    }

    std::string destination() const { return (applications / "Vistrel.app").string(); }
    bool offer() { return MoveToApplications::offerIfNeeded(applications.string()); }

    testing::TempDir folder;
    fs::path bundle;
    fs::path applications;
};

TEST(MoveToApplicationsPlaces, DiskImagesAndTranslocatedCopiesNeedTheMove) {
    EXPECT_TRUE(MoveToApplications::needsMove("/Volumes/Vistrel/Vistrel.app"));
    EXPECT_TRUE(MoveToApplications::needsMove(
        "/private/var/folders/xy/T/AppTranslocation/1A2B/d/Vistrel.app"));
    EXPECT_FALSE(MoveToApplications::needsMove("/Applications/Vistrel.app"));
    EXPECT_FALSE(MoveToApplications::needsMove("/Users/ann/Volumes/Vistrel.app"));
}

TEST(MoveToApplicationsPlaces, TheNewCopyOpensASecondAfterThisOneQuit) {
    EXPECT_EQ(MoveToApplications::relaunchCommand("/Applications/Vistrel.app"),
              "sleep 1; /usr/bin/open -n \"/Applications/Vistrel.app\"");
}

TEST_F(MoveToApplicationsTest, MovingCopiesTheAppRelaunchesItAndQuits) {
    EXPECT_TRUE(offer());
    ASSERT_EQ(desktop.alert().shown.size(), 1u);
    EXPECT_EQ(desktop.alert().shown[0].text,
              "It needs to live in your Applications folder to keep its permission and start at "
              "login.");
    EXPECT_TRUE(fs::exists(applications / "Vistrel.app/Contents/MacOS/Vistrel"));
    ASSERT_EQ(desktop.processes().started.size(), 1u);
    EXPECT_EQ(desktop.processes().started[0].first, "/bin/sh");
    EXPECT_EQ(desktop.processes().started[0].second,
              (Buttons{"-c", "sleep 1; /usr/bin/open -n \"" + destination() + "\""}));
    EXPECT_TRUE(desktop.application().terminated());
}

TEST_F(MoveToApplicationsTest, AnOlderCopyInApplicationsGoesToTheTrashNotOverwrittenInPlace) {
    fs::create_directories(applications / "Vistrel.app/Contents/MacOS");
    std::ofstream(applications / "Vistrel.app/Contents/MacOS/Vistrel") << "old";
    EXPECT_TRUE(offer());
    EXPECT_EQ(desktop.files().trashed, (Buttons{destination()}));
    EXPECT_TRUE(fs::exists(folder.path() / "Trash/Vistrel.app/Contents/MacOS/Vistrel"));
    EXPECT_EQ(testing::readFile(applications / "Vistrel.app/Contents/MacOS/Vistrel"), "new");
}

TEST_F(MoveToApplicationsTest, NotNowKeepsTheAppWhereItIs) {
    desktop.alert().answers.push_back(1);
    EXPECT_FALSE(offer());
    EXPECT_FALSE(fs::exists(applications / "Vistrel.app"));
    EXPECT_TRUE(desktop.processes().started.empty());
    EXPECT_FALSE(desktop.application().terminated());
}

// An alert whose modal session was aborted or stopped names no button; taking it for the
// first would move the app and put the copy in Applications in the Trash.
TEST_F(MoveToApplicationsTest, AnOfferEndedWithoutAButtonKeepsTheAppWhereItIs) {
    desktop.alert().answers.push_back(std::nullopt);
    EXPECT_FALSE(offer());
    EXPECT_FALSE(fs::exists(applications / "Vistrel.app"));
    EXPECT_TRUE(desktop.files().trashed.empty());
    EXPECT_FALSE(desktop.application().terminated());
}

TEST_F(MoveToApplicationsTest, AFailedCopySaysSoAndStartsInPlace) {
    desktop.files().copyFailures[destination()] = "You don't have permission.";
    EXPECT_FALSE(offer());
    ASSERT_EQ(desktop.alert().shown.size(), 2u);
    EXPECT_EQ(desktop.alert().shown[1].title, "Could not move the app");
    EXPECT_EQ(desktop.alert().shown[1].text,
              "Drag Vistrel into your Applications folder yourself, then open it from there.");
    EXPECT_EQ(desktop.alert().shown[1].buttons, (Buttons{"OK"}));
    EXPECT_TRUE(desktop.processes().started.empty());
    EXPECT_FALSE(desktop.application().terminated());
}

TEST_F(MoveToApplicationsTest, ARelaunchThatCannotStartSaysSoAndStartsInPlace) {
    desktop.processes().failure = "The file couldn't be opened.";
    EXPECT_FALSE(offer());
    ASSERT_EQ(desktop.alert().shown.size(), 2u);
    EXPECT_EQ(desktop.alert().shown[1].title, "Could not move the app");
    EXPECT_FALSE(desktop.application().terminated());
}

}  // namespace
}  // namespace vistrel
