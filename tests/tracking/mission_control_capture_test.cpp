#include "tracking/mission_control_capture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

#include "platform/sim/sim_capture_scene.h"
#include "platform/sim/sim_presentation.h"
#include "platform/sim/sim_scene.h"
#include "support/presented.h"
#include "support/sim_test.h"
#include "support/temp_dir.h"
#include "tracking/ax.h"
#include "tracking/thumbnail_reader.h"
#include "tracking/thumbnail_targets.h"

namespace vistrel {
namespace {

using Outcome = MissionControlCapture::Outcome;
using nlohmann::json;

TEST(MissionControlCaptureArguments, FlagWithAFileAsksForACaptureWithoutTitles) {
    const auto request =
        MissionControlCapture::requested({"Vistrel", "--capture-mission-control", "mc.json"});
    ASSERT_TRUE(request);
    EXPECT_EQ(request->path, "mc.json");
    EXPECT_FALSE(request->withTitles);
}

TEST(MissionControlCaptureArguments, WithTitlesMayComeBeforeOrAfter) {
    EXPECT_TRUE(MissionControlCapture::requested(
                    {"Vistrel", "--capture-mission-control", "a.json", "--with-titles"})
                    ->withTitles);
    EXPECT_TRUE(MissionControlCapture::requested(
                    {"Vistrel", "--with-titles", "--capture-mission-control", "a.json"})
                    ->withTitles);
}

TEST(MissionControlCaptureArguments, NoFlagNoCaptureAndAMissingFileIsAnEmptyPath) {
    EXPECT_FALSE(MissionControlCapture::requested({"Vistrel", "--diagnose"}));
    EXPECT_EQ(MissionControlCapture::requested({"Vistrel", "--capture-mission-control"})->path, "");
    EXPECT_EQ(
        MissionControlCapture::requested({"Vistrel", "--capture-mission-control", "--with-titles"})
            ->path,
        "");
}

class MissionControlCaptureTest : public testing::SimTest {
  protected:
    MissionControlCaptureTest() {
        desktop.systemInfo().version = {27, 0, 1};
        populateDefaultScene(desktop);
        request.path = (folder.path() / "mc.json").string();
    }

    void start() {
        MissionControlCapture::start(request, [this](Outcome result) { outcome = result; });
    }

    // Runs a capture with Mission Control open: it is written once the thumbnails stood
    // still for a tenth of a second.
    void captureOpen() {
        desktop.dock().open();
        start();
        desktop.executor().advance(MissionControlCapture::settleInterval);
    }

    json written() { return json::parse(testing::readFile(request.path)); }

    testing::TempDir folder;
    MissionControlCapture::Request request;
    std::optional<Outcome> outcome;
};

TEST_F(MissionControlCaptureTest, OpenMissionControlIsWrittenOnceTheThumbnailsStandStill) {
    desktop.dock().open();
    start();
    desktop.executor().runUntilIdle();
    EXPECT_FALSE(outcome) << "one read cannot tell that the thumbnails stand still";
    desktop.executor().advance(MissionControlCapture::settleInterval);
    ASSERT_EQ(outcome, Outcome::written);
    const json capture = written();
    EXPECT_EQ(capture["system"], json({{"major", 27}, {"minor", 0}, {"patch", 1}}));
    EXPECT_EQ(capture["missionControlHost"], "WindowManager");
    EXPECT_EQ(capture["dock"]["groups"].size(), 1u);
    EXPECT_EQ(capture["dock"]["groups"][0]["identifier"], "mc");
    EXPECT_EQ(capture["windowManager"]["pid"], desktop.dock().windowManagerPid());
    EXPECT_EQ(MissionControlCapture::message(*outcome, request),
              "mission control: capture written to " + request.path);
}

TEST_F(MissionControlCaptureTest, WaitsForMissionControlToOpen) {
    start();
    desktop.executor().advance(20);
    EXPECT_FALSE(outcome);
    EXPECT_FALSE(std::filesystem::exists(request.path));
    desktop.dock().open();
    desktop.executor().advance(MissionControlCapture::pollInterval +
                               MissionControlCapture::settleInterval);
    EXPECT_EQ(outcome, Outcome::written);
}

TEST_F(MissionControlCaptureTest, MovingThumbnailsAreWaitedForAtMostASecond) {
    desktop.dock().open();
    start();
    desktop.executor().runUntilIdle();
    SimWindow& moving = *desktop.window(desktop.windows().front().id);
    for (int step = 0; step < 9; ++step) {
        moving.frame.width -= 40;
        desktop.executor().advance(MissionControlCapture::settleInterval);
        ASSERT_FALSE(outcome) << "still moving after " << step + 1 << " tenths";
    }
    moving.frame.width -= 40;
    desktop.executor().advance(MissionControlCapture::settleInterval);
    EXPECT_EQ(outcome, Outcome::written);
}

TEST_F(MissionControlCaptureTest, WithoutTheAccessibilityPermissionNothingIsWaitedFor) {
    desktop.trusted = false;
    start();
    desktop.executor().runUntilIdle();
    EXPECT_EQ(outcome, Outcome::notTrusted);
    EXPECT_FALSE(std::filesystem::exists(request.path));
    EXPECT_EQ(MissionControlCapture::message(*outcome, request),
              "mission control: no Accessibility permission (run from a terminal, the terminal "
              "needs it), nothing written");
}

TEST_F(MissionControlCaptureTest, EveryAttributeOfAnElementIsRecordedTextsOnlyWhereTheyIdentify) {
    captureOpen();
    const json display = written()["windowManager"]["groups"][0];
    ASSERT_EQ(display["identifier"], "mc.display");
    const json thumbnail = display["children"][0]["attributes"];
    EXPECT_EQ(thumbnail["AXRole"], "AXButton");
    EXPECT_TRUE(thumbnail["AXIdentifier"].get<std::string>().ends_with(".space.1"));
    EXPECT_TRUE(thumbnail["wid"].is_number_integer());
    EXPECT_EQ(thumbnail["AXFrame"].size(), 4u);
    EXPECT_EQ(thumbnail["AXTitle"], json({{"hidden", "text"}}));
    EXPECT_FALSE(thumbnail.contains("AXChildren"));
    EXPECT_FALSE(display["attributes"].contains("AXChildren")) << "children are walked, not listed";
}

TEST_F(MissionControlCaptureTest, RecordsTheThumbnailsTheHitTestsAndTheApplicationsWindows) {
    request.withTitles = true;
    captureOpen();
    const json capture = written();
    ASSERT_EQ(capture["thumbnails"].size(), capture["hitTests"].size());
    ASSERT_FALSE(capture["thumbnails"].empty());
    const json& hit = capture["hitTests"][0];
    EXPECT_EQ(hit["role"], "AXButton") << "WindowManager's thumbnail answers";
    EXPECT_EQ(hit["hasWindow"], false);
    EXPECT_EQ(hit["pid"], desktop.dock().windowManagerPid());
    EXPECT_TRUE(capture["thumbnails"][0].contains("identifier"));
    bool startPage = false;
    for (const json& window : capture["applications"]) {
        if (window["title"] == "Start Page") {
            startPage = window["bundle"] == "com.apple.Safari";
        }
    }
    EXPECT_TRUE(startPage);
}

TEST_F(MissionControlCaptureTest, GivesUpAfterAMinuteWritingNothing) {
    start();
    desktop.executor().advance(59);
    EXPECT_FALSE(outcome);
    desktop.executor().advance(1.5);
    EXPECT_EQ(outcome, Outcome::neverOpened);
    EXPECT_FALSE(std::filesystem::exists(request.path));
    EXPECT_EQ(MissionControlCapture::message(*outcome, request),
              "mission control: did not open within a minute, nothing written");
}

TEST_F(MissionControlCaptureTest, TitlesAndWindowNamesStayOutUnlessAskedFor) {
    captureOpen();
    const std::string text = testing::readFile(request.path);
    EXPECT_EQ(text.find("\"title\""), std::string::npos);
    EXPECT_EQ(text.find("Start Page"), std::string::npos);
    EXPECT_EQ(text.find("\"name\""), std::string::npos);

    request.withTitles = true;
    start();
    desktop.executor().advance(MissionControlCapture::settleInterval);
    EXPECT_NE(testing::readFile(request.path).find("\"title\": \"Start Page\""), std::string::npos);
    EXPECT_EQ(testing::readFile(request.path).find("\"name\""), std::string::npos);
}

TEST_F(MissionControlCaptureTest, WindowListKeepsOwnerProcessLayerBoundsAndNumber) {
    captureOpen();
    const json windows = written()["windows"];
    const auto listed = desktop.windowServer().windowList(WindowListOption::onScreenOnly);
    ASSERT_EQ(windows.size(), listed->size());
    const json& last = windows.back();
    EXPECT_EQ(last["number"], *listed->back().number);
    EXPECT_EQ(last["pid"], *listed->back().ownerPid);
    EXPECT_EQ(last["owner"], *listed->back().ownerName);
    EXPECT_EQ(last["layer"], 0);
    const Rect bounds = *listed->back().bounds;
    EXPECT_EQ(last["bounds"], json({bounds.x, bounds.y, bounds.width, bounds.height}));
}

TEST_F(MissionControlCaptureTest, UnwritableFileOrNoFileIsSaidPlainly) {
    desktop.dock().open();
    request.path = (folder.path() / "missing" / "mc.json").string();
    start();
    desktop.executor().advance(MissionControlCapture::settleInterval);
    EXPECT_EQ(outcome, Outcome::notWritten);
    EXPECT_EQ(MissionControlCapture::message(*outcome, request),
              "mission control: could not write " + request.path);

    request.path.clear();
    start();
    desktop.executor().runUntilIdle();
    EXPECT_EQ(outcome, Outcome::noFile);
    EXPECT_EQ(MissionControlCapture::message(*outcome, request),
              "usage: Vistrel --capture-mission-control FILE [--with-titles]");
}

// A capture of the simulated Mac, loaded into a fresh desktop, shows the same Mission
// Control: what the simulator learns from a real capture is what the capture recorded.
TEST_F(MissionControlCaptureTest, CaptureReplaysAsTheSameMissionControl) {
    captureOpen();
    const std::vector<Rect> frames = ThumbnailReader().frames();
    ASSERT_FALSE(frames.empty());

    SimDesktop replay;
    ScopedPlatform installed(replay);
    std::string error;
    ASSERT_TRUE(loadCapturedScene(replay, testing::readFile(request.path), error)) << error;
    EXPECT_EQ(ThumbnailReader().frames(), frames);
}

// Each way a Mac presents Mission Control, captured with titles and replayed on a fresh
// desktop, lets the agent hover the same window at every thumbnail's centre.
class CaptureRoundTripTest : public MissionControlCaptureTest,
                             public ::testing::WithParamInterface<SimPresentation> {};

std::vector<std::pair<Pid, Rect>> hoveredAtEveryCentre(Pid ownPid) {
    ThumbnailReader reader;
    ThumbnailReader::Read read = reader.read();
    std::vector<Rect> frames;
    for (const MissionControlThumbnail& thumbnail : read.thumbnails)
        frames.push_back(thumbnail.frame);
    ThumbnailTargets targets;
    targets.update(1, std::move(read), ownPid);
    std::vector<std::pair<Pid, Rect>> hovered;
    for (const Rect& frame : frames) {
        const auto hit = targets.hovered(frame.mid(), 1, ownPid, reader.dockPid());
        hovered.emplace_back(hit ? hit->pid : 0,
                             hit ? AX::frame(hit->window).value_or(Rect{}) : Rect{});
    }
    return hovered;
}

TEST_P(CaptureRoundTripTest, TheReplayHoversWhatTheCapturedMacHovers) {
    present(desktop, GetParam());
    request.withTitles = true;
    captureOpen();
    ASSERT_EQ(outcome, Outcome::written);
    const auto original = hoveredAtEveryCentre(desktop.ownPid);
    ASSERT_FALSE(original.empty());

    SimDesktop replay;
    ScopedPlatform installed(replay);
    std::string error;
    ASSERT_TRUE(loadCapturedScene(replay, testing::readFile(request.path), error)) << error;
    const auto replayed = hoveredAtEveryCentre(replay.ownPid);
    EXPECT_EQ(replayed, original);
}

INSTANTIATE_TEST_SUITE_P(Presentations, CaptureRoundTripTest,
                         ::testing::ValuesIn(everyPresentation), testing::PresentationName{});

}  // namespace
}  // namespace vistrel
