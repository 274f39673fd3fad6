#include "tracking/thumbnail_window.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "platform/sim/sim_scene.h"
#include "support/sim_test.h"
#include "tracking/ax.h"
#include "tracking/window_by_number.h"

namespace vistrel {
namespace {

class ThumbnailWindowTest : public testing::SimTest {
  protected:
    ThumbnailWindowTest() {
        desktop.systemInfo().version = {27, 0, 0};
        populateDefaultScene(desktop);
        desktop.dock().open();
    }

    AXElement windowElement(SimWindowId id) { return desktop.accessibility().windowElement(id); }
};

TEST_F(ThumbnailWindowTest, EveryThumbnailsCentreResolvesToTheWindowItShows) {
    ASSERT_FALSE(desktop.dock().thumbnails().empty());
    for (const SimThumbnail& thumbnail : desktop.dock().thumbnails()) {
        const auto hit = AX::windowAt(thumbnail.frame.mid());
        ASSERT_TRUE(hit);
        EXPECT_EQ(hit->window, windowElement(thumbnail.window));
        EXPECT_EQ(hit->pid, desktop.window(thumbnail.window)->pid);
    }
}

TEST_F(ThumbnailWindowTest, HitTestAnsweringTheDisplayFallsBackToTheSmallestThumbnailThere) {
    const SimThumbnail shown = desktop.dock().thumbnails().front();
    const AXElement display = *AX::elementAt({2, 2});
    desktop.accessibility().hitTestOverride = [display](Point) { return display; };
    const auto hit = AX::windowAt(shown.frame.mid());
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->window, windowElement(shown.window));
}

TEST_F(ThumbnailWindowTest, OverlappingThumbnailsOfTheDesktopGiveTheSmallerOnesWindow) {
    const std::vector<SimThumbnail> shown = desktop.dock().thumbnails();
    ASSERT_GE(shown.size(), 2u);
    SimAccessibility& ax = desktop.accessibility();
    const Pid windowManager = desktop.dock().windowManagerPid();
    const auto thumbnail = [&](SimWindowId window, Rect frame) {
        return ax.nodeElement(ax.addNode(
            windowManager, {{"wid", static_cast<std::int64_t>(window)}, {"AXFrame", frame}}));
    };
    const Rect large{100, 100, 600, 400};
    const Rect small{300, 200, 200, 150};
    const AXElement display = ax.nodeElement(ax.addNode(
        windowManager, {{"AXIdentifier", std::string("mc.display")},
                        {"AXChildren", std::vector{thumbnail(shown[0].window, large),
                                                   thumbnail(shown[1].window, small),
                                                   thumbnail(shown[0].window, large)}}}));
    desktop.dock().close();  // the tree below stays as the test made it
    ax.applicationChildren[windowManager] = {display};
    ax.hitTestOverride = [display](Point) { return display; };

    const auto hit = AX::windowAt(small.mid());
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->window, windowElement(shown[1].window));
}

TEST_F(ThumbnailWindowTest, ThumbnailOfAnotherDesktopUnderTheHitTestIsNotTaken) {
    const SimThumbnail shown = desktop.dock().thumbnails().front();
    // The hit-test answers with a thumbnail of another desktop that overlaps this one.
    SimAccessibility& ax = desktop.accessibility();
    const AXElement other =
        ax.nodeElement(ax.addNode(desktop.dock().windowManagerPid(),
                                  {{"wid", std::int64_t{0x9001}}, {"AXFrame", shown.frame}}));
    ax.hitTestOverride = [other](Point) { return other; };
    const auto hit = AX::windowAt(shown.frame.mid());
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->window, windowElement(shown.window));
}

TEST_F(ThumbnailWindowTest, PointOutsideEveryThumbnailFindsNoWindow) {
    EXPECT_FALSE(AX::windowAt({2, 2}));
}

TEST_F(ThumbnailWindowTest, TwoWindowsOfOneFrameAreToldApartByTheThumbnailsTitle) {
    const SimThumbnail shown = desktop.dock().thumbnails().front();
    SimWindow& original = *desktop.window(shown.window);
    SimWindow twin = original;
    twin.title = "Twin of " + original.title;
    const SimWindowId twinId = desktop.addWindow(original.pid, twin);
    desktop.bringToFront(shown.window);
    SimAccessibility& ax = desktop.accessibility();
    const AXElement thumbnail = ax.nodeElement(
        ax.addNode(desktop.dock().windowManagerPid(),
                   {{"AXTitle", twin.title}, {"wid", static_cast<std::int64_t>(twinId)}}));
    const auto hit = WindowByNumber::find(static_cast<std::uint32_t>(twinId), thumbnail);
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->window, windowElement(twinId));
}

// Found by fuzzing: with several windows at the bounds and no title to pick one, the first
// listed was taken, which could be another window than the one the thumbnail shows.
TEST_F(ThumbnailWindowTest, WindowsOfOneFrameThatNoTitleTellsApartFindNothing) {
    const SimThumbnail shown = desktop.dock().thumbnails().front();
    SimWindow& original = *desktop.window(shown.window);
    const SimWindowId twinId = desktop.addWindow(original.pid, original);
    desktop.bringToFront(shown.window);
    SimAccessibility& ax = desktop.accessibility();
    for (const char* title : {"Another title", ""}) {
        std::map<std::string, AXValue> attributes{{"wid", static_cast<std::int64_t>(twinId)}};
        if (*title) attributes["AXTitle"] = std::string(title);
        const AXElement thumbnail =
            ax.nodeElement(ax.addNode(desktop.dock().windowManagerPid(), std::move(attributes)));
        EXPECT_FALSE(WindowByNumber::find(static_cast<std::uint32_t>(twinId), thumbnail)) << title;
    }
}

TEST_F(ThumbnailWindowTest, NumberNotInTheWindowListFindsNothing) {
    EXPECT_FALSE(WindowByNumber::find(0x9001, AXElement{}));
    const SimThumbnail shown = desktop.dock().thumbnails().front();
    desktop.window(shown.window)->minimized = true;
    EXPECT_FALSE(WindowByNumber::find(static_cast<std::uint32_t>(shown.window), AXElement{}));
}

TEST_F(ThumbnailWindowTest, WindowWhoseFrameNoLongerMatchesItsBoundsIsNotGuessed) {
    const SimThumbnail shown = desktop.dock().thumbnails().front();
    desktop.windowServer().frontWindows.push_back(
        {0x4242, desktop.window(shown.window)->pid, "Odd", std::nullopt, 0, Rect{1, 2, 3, 4}});
    EXPECT_FALSE(WindowByNumber::find(0x4242, AXElement{}));
}

TEST_F(ThumbnailWindowTest, UpToMacOS26TheHitElementItselfIsAsked) {
    desktop.dock().close();
    desktop.systemInfo().version = {26, 0, 0};
    desktop.dock().open();
    const SimThumbnail shown = desktop.dock().thumbnails().front();
    desktop.accessibility().resetCounts();
    const auto hit = AX::windowAt(shown.frame.mid());
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->window, windowElement(shown.window));
    EXPECT_EQ(desktop.accessibility().attributeReads("wid"), 0u);
    EXPECT_EQ(desktop.accessibility().attributeReads("AXWindows"), 0u);
}

}  // namespace
}  // namespace vistrel
