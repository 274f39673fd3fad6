// Every capture of a real Mac's Mission Control in this folder, replayed as a scene: the
// agent sees Mission Control open, reads every thumbnail of the current desktop with its
// frame, and hovers at each thumbnail's centre the window the thumbnail shows.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "platform/sim/sim_capture_scene.h"
#include "support/sim_test.h"
#include "tracking/ax.h"
#include "tracking/mission_control_detector.h"
#include "tracking/thumbnail_reader.h"
#include "tracking/thumbnail_targets.h"

namespace vistrel {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

std::vector<std::string> captureFiles() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(fs::path(VISTREL_TEST_DATA_DIR) / "captures")) {
        if (entry.path().extension() == ".json") names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string read(const fs::path& path) {
    std::ifstream file(path);
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

Rect rectangleOf(const json& value) {
    return {value[0].get<double>(), value[1].get<double>(), value[2].get<double>(),
            value[3].get<double>()};
}

// What the capture itself says the agent must find: the thumbnails naming a listed window,
// in tree order, and that window's owner and bounds.
struct Expected {
    Rect thumbnail;
    Pid pid;
    Rect window;
};

void collect(const json& node, const json& windows, std::vector<Expected>& out) {
    if (node.contains("wid") && node.contains("frame")) {
        for (const json& window : windows) {
            if (window.value("number", 0u) == node["wid"].get<std::uint32_t>()) {
                out.push_back({rectangleOf(node["frame"]), window["pid"].get<Pid>(),
                               rectangleOf(window["bounds"])});
            }
        }
    }
    for (const json& child : node.value("children", json::array()))
        collect(child, windows, out);
}

class CaptureReplayTest : public testing::SimTest,
                          public ::testing::WithParamInterface<std::string> {
  protected:
    void SetUp() override {
        const std::string text = read(fs::path(VISTREL_TEST_DATA_DIR) / "captures" / GetParam());
        capture = json::parse(text);
        std::string error;
        ASSERT_TRUE(loadCapturedScene(desktop, text, error)) << error;
        const char* host =
            capture["missionControlHost"] == "WindowManager" ? "windowManager" : "dock";
        for (const json& group : capture[host]["groups"])
            collect(group, capture["windows"], expected);
        ASSERT_FALSE(expected.empty()) << "a capture names at least one window";
    }

    json capture;
    std::vector<Expected> expected;
};

TEST_P(CaptureReplayTest, MissionControlIsSeenOpen) {
    EXPECT_TRUE(MissionControlDetector::isMissionControlOpen());
}

TEST_P(CaptureReplayTest, EveryThumbnailOfTheDesktopIsReadWithItsFrame) {
    std::vector<Rect> frames;
    for (const Expected& thumbnail : expected)
        frames.push_back(thumbnail.thumbnail);
    EXPECT_EQ(ThumbnailReader().frames(), frames);
}

// What the agent itself would hover: the thumbnails read, tied to windows once, and the
// hover queue's answer at each thumbnail's centre.
TEST_P(CaptureReplayTest, TheAgentHoversEachThumbnailsOwnWindow) {
    ThumbnailReader reader;
    ThumbnailReader::Read read = reader.read();
    ASSERT_TRUE(read.host);
    ThumbnailTargets targets;
    const MissionControlReading reading = targets.update(1, std::move(read), desktop.ownPid);
    EXPECT_EQ(static_cast<std::size_t>(reading.mapped), expected.size());
    for (const Expected& thumbnail : expected) {
        SCOPED_TRACE(::testing::Message()
                     << "thumbnail at " << thumbnail.thumbnail.x << ", " << thumbnail.thumbnail.y);
        const auto hit =
            targets.hovered(thumbnail.thumbnail.mid(), 1, desktop.ownPid, reader.dockPid());
        ASSERT_TRUE(hit);
        EXPECT_EQ(hit->pid, thumbnail.pid);
        EXPECT_EQ(AX::frame(hit->window), thumbnail.window);
    }
}

INSTANTIATE_TEST_SUITE_P(Captures, CaptureReplayTest, ::testing::ValuesIn(captureFiles()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                             std::string name = fs::path(info.param).stem().string();
                             std::replace_if(
                                 name.begin(), name.end(),
                                 [](char c) {
                                     return !std::isalnum(static_cast<unsigned char>(c));
                                 },
                                 '_');
                             return name;
                         });

}  // namespace
}  // namespace vistrel
