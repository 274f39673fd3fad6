#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/installed_editor.h"
#include "window_test.h"
#include "windows/window_mover.h"

namespace vistrel {
namespace {

using testing::editorID;
using testing::editorPath;
using testing::WindowTest;

const std::string opened = "layouts: opened Editor to restore a layout";

class WindowMoverLaunchTest : public WindowTest {
  protected:
    // Installs the editor, not running, with one window it brings up after a launch.
    void install(double launchDelay, double windowDelay) {
        testing::installEditor(desktop, launchDelay, windowDelay);
    }

    std::optional<RunningApplication> launchTimed() {
        start = desktop.clock().now();
        return WindowMover::launch(editorID);
    }

    double start = 0;
};

TEST_F(WindowMoverLaunchTest, LaunchOpensTheApplicationInTheBackgroundAndWaitsForItsWindow) {
    install(0.6, 0.4);

    const auto app = launchTimed();

    ASSERT_TRUE(app.has_value());
    EXPECT_EQ(app->bundleIdentifier, editorID);
    EXPECT_EQ(app->localizedName, "Editor");
    EXPECT_EQ(desktop.windowsOf(app->pid).size(), 1u);
    const auto& requests = desktop.workspace().launchRequests;
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_EQ(requests.front().first, editorPath);
    EXPECT_FALSE(requests.front().second.activates);
    EXPECT_EQ(log(), std::vector<std::string>{opened});
    // Open after 0.6 s, then a look every quarter second until the window came at 1.0 s.
    EXPECT_NEAR(elapsedSince(start), 1.1, 1e-6);
}

TEST_F(WindowMoverLaunchTest, AnApplicationThatIsNotInstalledIsNotLaunched) {
    EXPECT_EQ(launchTimed(), std::nullopt);

    EXPECT_TRUE(desktop.workspace().launchRequests.empty());
    EXPECT_TRUE(log().empty());
    EXPECT_EQ(elapsedSince(start), 0);
}

TEST_F(WindowMoverLaunchTest, AnApplicationThatNeverRunsGivesNothingAfterTheOpenAndThePolls) {
    install(60, 0.4);

    EXPECT_EQ(launchTimed(), std::nullopt);

    EXPECT_TRUE(log().empty());
    EXPECT_NEAR(
        elapsedSince(start),
        WindowMover::launchTimeout + WindowMover::launchPolls * WindowMover::launchPollInterval,
        1e-6);
}

TEST_F(WindowMoverLaunchTest, AnOpenSlowerThanTheTimeoutIsStillWaitedForByThePolls) {
    install(7, 0.4);

    const auto app = launchTimed();

    ASSERT_TRUE(app.has_value());
    EXPECT_EQ(desktop.windowsOf(app->pid).size(), 1u);
    EXPECT_EQ(log(), std::vector<std::string>{opened});
    EXPECT_NEAR(elapsedSince(start), 7.5, 1e-6);
}

TEST_F(WindowMoverLaunchTest, AnApplicationWithoutAWindowInTimeIsStillReturned) {
    install(0.6, 60);

    const auto app = launchTimed();

    ASSERT_TRUE(app.has_value());
    EXPECT_TRUE(desktop.windowsOf(app->pid).empty());
    EXPECT_EQ(log(), std::vector<std::string>{opened});
    EXPECT_NEAR(elapsedSince(start),
                0.6 + WindowMover::launchPolls * WindowMover::launchPollInterval, 1e-6);
}

TEST_F(WindowMoverLaunchTest, ARunningApplicationWithAWindowIsReturnedAtTheFirstLook) {
    install(0.6, 0.4);
    const Pid pid = addApp(editorID, "Editor");
    addWindow(pid, "Draft", {100, 100, 500, 300});

    const auto app = launchTimed();

    ASSERT_TRUE(app.has_value());
    EXPECT_EQ(app->pid, pid);
    EXPECT_EQ(desktop.installations().launches(), 0);
    EXPECT_NEAR(elapsedSince(start), WindowMover::launchPollInterval, 1e-6);
}

TEST_F(WindowMoverLaunchTest, RunningFindsTheFirstApplicationWithTheBundleIdentifier) {
    addApp("com.example.viewer", "Viewer");
    const Pid first = addApp(editorID, "Editor");
    addApp(editorID, "Editor");

    const auto app = WindowMover::running(editorID);

    ASSERT_TRUE(app.has_value());
    EXPECT_EQ(app->pid, first);
    EXPECT_EQ(WindowMover::running("com.example.absent"), std::nullopt);
}

TEST_F(WindowMoverLaunchTest, RunningSkipsAnApplicationThatQuit) {
    const Pid quit = addApp(editorID, "Editor");
    desktop.application(quit)->terminated = true;

    EXPECT_EQ(WindowMover::running(editorID), std::nullopt);
}

}  // namespace
}  // namespace vistrel
