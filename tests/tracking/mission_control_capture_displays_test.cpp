// The capture records each display's number and UUID with its frames, and the replay
// stands the same displays up, so a capture from a Mac with several displays replays on them.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include <nlohmann/json.hpp>

#include "platform/sim/sim_capture_scene.h"
#include "platform/sim/sim_scene.h"
#include "support/sim_test.h"
#include "support/temp_dir.h"
#include "tracking/mission_control_capture.h"
#include "tracking/thumbnail_reader.h"

namespace vistrel {
namespace {

using Outcome = MissionControlCapture::Outcome;
using nlohmann::json;

constexpr std::uint32_t secondDisplay = 0x4A1;

class CaptureDisplaysTest : public testing::SimTest {
  protected:
    CaptureDisplaysTest() {
        populateDefaultScene(desktop);
        desktop.plugDisplay(secondDisplay, {1920, 1080});
        desktop.executor().advance(1);
        request.path = (folder.path() / "mc.json").string();
    }

    void captureOpen() {
        desktop.dock().open();
        MissionControlCapture::start(request, [this](Outcome result) { outcome = result; });
        desktop.executor().advance(MissionControlCapture::settleInterval);
        ASSERT_EQ(outcome, Outcome::written);
    }

    testing::TempDir folder;
    MissionControlCapture::Request request;
    std::optional<Outcome> outcome;
};

TEST_F(CaptureDisplaysTest, EveryDisplaysNumberAndUUIDAreRecordedWithItsFrames) {
    captureOpen();
    const json displays = json::parse(testing::readFile(request.path))["displays"];
    ASSERT_EQ(displays.size(), desktop.screens().size());
    ASSERT_EQ(displays.size(), 2u);
    for (std::size_t i = 0; i < displays.size(); ++i) {
        const ScreenDescription& screen = desktop.screens()[i];
        EXPECT_EQ(displays[i]["displayID"], *screen.displayID);
        EXPECT_EQ(displays[i]["uuid"], *desktop.windowServer().displayUUID(*screen.displayID));
        EXPECT_EQ(displays[i]["frame"], json::array({screen.frame.x, screen.frame.y,
                                                     screen.frame.width, screen.frame.height}));
    }
    EXPECT_EQ(displays[1]["displayID"], secondDisplay);
}

TEST_F(CaptureDisplaysTest, TheReplayStandsUpTheCapturedDisplaysWithTheirUUIDs) {
    desktop.windowServer().displayUUIDs[secondDisplay] = "9C1E5A2B-0D4F-4E61-A7B3-1F2E3D4C5B6A";
    captureOpen();
    const std::vector<ScreenDescription> captured = desktop.screens();
    const std::vector<Rect> frames = ThumbnailReader().frames();

    SimDesktop replay;
    ScopedPlatform installed(replay);
    std::string error;
    ASSERT_TRUE(loadCapturedScene(replay, testing::readFile(request.path), error)) << error;
    ASSERT_EQ(replay.screens().size(), captured.size());
    for (std::size_t i = 0; i < captured.size(); ++i) {
        EXPECT_EQ(replay.screens()[i].displayID, captured[i].displayID);
        EXPECT_EQ(replay.screens()[i].frame, captured[i].frame);
        EXPECT_EQ(replay.screens()[i].visibleFrame, captured[i].visibleFrame);
        EXPECT_EQ(replay.windowServer().displayUUID(*captured[i].displayID),
                  desktop.windowServer().displayUUID(*captured[i].displayID));
    }
    EXPECT_EQ(replay.windowServer().displayUUID(secondDisplay),
              "9C1E5A2B-0D4F-4E61-A7B3-1F2E3D4C5B6A");
    EXPECT_EQ(ThumbnailReader().frames(), frames);
}

TEST(CaptureDisplaysReplay, ACaptureWithoutDisplaysKeepsTheEmptyDesktopsOne) {
    SimDesktop replay;
    ScopedPlatform installed(replay);
    const std::vector<ScreenDescription> before = replay.screens();
    std::string error;
    ASSERT_TRUE(loadCapturedScene(replay, R"({"system": {"major": 26}, "windows": []})", error))
        << error;
    EXPECT_EQ(replay.screens(), before);
}

}  // namespace
}  // namespace vistrel
