#include "platform/sim/sim_capture_scene.h"

#include <gtest/gtest.h>

#include "support/sim_test.h"

namespace vistrel {
namespace {

using SimCaptureSceneTest = testing::SimTest;

TEST_F(SimCaptureSceneTest, TextThatIsNoCaptureIsRefusedWithItsReason) {
    std::string error;
    EXPECT_FALSE(loadCapturedScene(desktop, "not json", error));
    EXPECT_EQ(error, "not a JSON object");
    EXPECT_FALSE(loadCapturedScene(desktop, R"({"system": {"major": 27}})", error));
    EXPECT_EQ(error, "no \"system\" or \"windows\"");
    EXPECT_FALSE(loadCapturedScene(desktop, R"({"system": {"major": "x"}, "windows": []})", error));
    EXPECT_FALSE(error.empty());
    EXPECT_TRUE(desktop.applications().empty());
}

TEST_F(SimCaptureSceneTest, WindowsBecomeApplicationWindowsWithTheirThumbnailsTitleAndBundle) {
    std::string error;
    ASSERT_TRUE(loadCapturedScene(desktop, R"({
        "system": {"major": 27, "minor": 1, "patch": 0},
        "windowManager": {"pid": 70, "groups": [{"identifier": "mc.display", "children": [
            {"identifier": "com.apple.Notes.space.1", "title": "Groceries", "wid": 900,
             "frame": [10, 10, 100, 80]}]}]},
        "windows": [
            {"number": 5, "pid": 60, "owner": "Dock", "layer": 20, "bounds": [0, 0, 1440, 900]},
            {"number": 900, "pid": 61, "owner": "Notes", "layer": 0, "bounds": [40, 50, 600, 400]}
        ]})",
                                  error))
        << error;
    EXPECT_EQ(desktop.systemInfo().version, (OperatingSystemVersion{27, 1, 0}));
    ASSERT_EQ(desktop.windows().size(), 1u);
    const SimWindow& window = desktop.windows().front();
    EXPECT_EQ(window.title, "Groceries");
    EXPECT_EQ(window.frame, (Rect{40, 50, 600, 400}));
    EXPECT_EQ(desktop.application(window.pid)->bundleIdentifier, "com.apple.Notes");
    ASSERT_EQ(desktop.windowServer().frontWindows.size(), 1u);
    EXPECT_EQ(desktop.windowServer().frontWindows.front().layer, 20);
}

}  // namespace
}  // namespace vistrel
