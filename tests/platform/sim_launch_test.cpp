#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "platform/sim/sim_desktop.h"
#include "platform/sim/sim_scene.h"
#include "support/installed_editor.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

using testing::editorID;
using testing::editorPath;
constexpr double launchDelay = 0.6;
constexpr double windowDelay = 0.4;
constexpr double timeout = 5.0;
// Virtual time is a double of about 1.8e9 seconds: differences are good to a few 1e-7.
constexpr double timeSlack = 1e-6;

class SimLaunchTest : public testing::SimTest {
  protected:
    SimLaunchTest() { testing::installEditor(desktop, launchDelay, windowDelay); }

    Workspace& workspace() { return desktop.workspace(); }
    bool launch(const std::string& path, double wait = timeout) {
        start = desktop.clock().now();
        return workspace().launchApplication(path, OpenConfiguration{}, wait);
    }
    double elapsed() { return desktop.clock().now() - start; }

    std::optional<RunningApplication> editor() {
        for (const RunningApplication& app : workspace().runningApplications()) {
            if (app.bundleIdentifier == editorID) return app;
        }
        return std::nullopt;
    }
    std::size_t editorWindows() {
        const auto app = editor();
        return app ? desktop.windowsOf(app->pid).size() : 0;
    }

    double start = 0;
};

TEST_F(SimLaunchTest, AnInstalledApplicationHasItsPathAsItsURL) {
    EXPECT_EQ(workspace().applicationURL(editorID), editorPath);
    EXPECT_EQ(workspace().applicationURL("com.example.absent"), std::nullopt);
}

TEST_F(SimLaunchTest, ALaunchWaitsUntilTheApplicationRunsAndItsWindowsComeLater) {
    EXPECT_TRUE(launch(editorPath));

    EXPECT_NEAR(elapsed(), launchDelay, timeSlack);
    ASSERT_TRUE(editor().has_value());
    EXPECT_EQ(editor()->localizedName, "Editor");
    EXPECT_EQ(editorWindows(), 0u);
    // Only the clock moves, as when the layouts queue waits between polls: the windows are
    // there for whoever looks next.
    desktop.clock().advanceBy(windowDelay);
    EXPECT_EQ(editorWindows(), 1u);
    EXPECT_EQ(desktop.installations().launches(), 1);
}

TEST_F(SimLaunchTest, ALaunchRecordsWhatWasAskedFor) {
    OpenConfiguration background;
    background.activates = false;

    workspace().launchApplication(editorPath, background, timeout);

    ASSERT_EQ(desktop.workspace().launchRequests.size(), 1u);
    EXPECT_EQ(desktop.workspace().launchRequests.front().first, editorPath);
    EXPECT_FALSE(desktop.workspace().launchRequests.front().second.activates);
}

TEST_F(SimLaunchTest, ALaunchSlowerThanTheTimeoutGivesUpAtTheTimeoutAndStillComesUpLater) {
    EXPECT_FALSE(launch(editorPath, launchDelay / 2));

    EXPECT_NEAR(elapsed(), launchDelay / 2, timeSlack);
    EXPECT_EQ(editor(), std::nullopt);
    desktop.executor().advance(launchDelay + windowDelay);
    EXPECT_EQ(editorWindows(), 1u);
}

TEST_F(SimLaunchTest, LaunchingARunningApplicationReturnsAtOnceWithoutASecondInstance) {
    ASSERT_TRUE(launch(editorPath));
    desktop.clock().advanceBy(windowDelay);

    EXPECT_TRUE(launch(editorPath));

    EXPECT_EQ(elapsed(), 0);
    EXPECT_EQ(desktop.installations().launches(), 1);
    EXPECT_EQ(editorWindows(), 1u);
}

TEST_F(SimLaunchTest, ASecondLaunchWhileTheFirstIsUnderWayWaitsForTheSameOne) {
    EXPECT_FALSE(launch(editorPath, launchDelay / 2));

    EXPECT_TRUE(launch(editorPath));

    EXPECT_NEAR(elapsed(), launchDelay / 2, timeSlack);
    EXPECT_EQ(desktop.installations().launches(), 1);
}

TEST_F(SimLaunchTest, LaunchingAPathWhereNothingIsInstalledFailsAtOnce) {
    EXPECT_FALSE(launch("/Applications/Nothing.app"));

    EXPECT_EQ(elapsed(), 0);
    EXPECT_EQ(desktop.installations().launches(), 0);
}

TEST_F(SimLaunchTest, OpeningCompletesOnTheMainQueueOnceTheApplicationRuns) {
    std::optional<bool> opened;
    workspace().openApplication(editorPath, OpenConfiguration{},
                                [&](bool ok, const std::string&) { opened = ok; });

    desktop.executor().advance(launchDelay / 2);
    EXPECT_EQ(opened, std::nullopt);
    desktop.executor().advance(launchDelay / 2);
    EXPECT_EQ(opened, true);
    EXPECT_EQ(editorWindows(), 0u);
    desktop.executor().advance(windowDelay);
    EXPECT_EQ(editorWindows(), 1u);
}

TEST_F(SimLaunchTest, OpeningAPathWhereNothingIsInstalledCompletesWithAnError) {
    std::optional<bool> opened;
    std::string error;
    workspace().openApplication("/Applications/Nothing.app", OpenConfiguration{},
                                [&](bool ok, const std::string& message) {
                                    opened = ok;
                                    error = message;
                                });

    desktop.executor().runUntilIdle();

    EXPECT_EQ(opened, false);
    EXPECT_FALSE(error.empty());
}

TEST_F(SimLaunchTest, TheDefaultSceneInstallsItsApplicationsSoAQuitOneCanBeLaunchedAgain) {
    populateDefaultScene(desktop);
    Pid notes = 0;
    for (const SimApplication& app : desktop.applications()) {
        if (app.bundleIdentifier == "com.apple.Notes") notes = app.pid;
    }
    workspace().forceTerminate(notes);

    EXPECT_TRUE(launch(*workspace().applicationURL("com.apple.Notes")));
    desktop.executor().advance(1);

    bool reopened = false;
    for (const SimWindow& window : desktop.windows()) {
        if (window.title == "Notes" && !window.closed && window.pid != notes) reopened = true;
    }
    EXPECT_TRUE(reopened);
}

}  // namespace
}  // namespace vistrel
