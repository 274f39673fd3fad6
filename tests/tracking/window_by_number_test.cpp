#include "tracking/window_by_number.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "platform/sim/sim_scene.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

// The window a WindowManager thumbnail's number names (macOS 27).
class WindowByNumberTest : public testing::SimTest {
  protected:
    WindowByNumberTest() {
        desktop.systemInfo().version = {27, 0, 0};
        populateDefaultScene(desktop);
        desktop.dock().open();
    }

    AXElement windowElement(SimWindowId id) { return desktop.accessibility().windowElement(id); }
};

TEST_F(WindowByNumberTest, TwoWindowsOfOneFrameAreToldApartByTheThumbnailsTitle) {
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
TEST_F(WindowByNumberTest, WindowsOfOneFrameThatNoTitleTellsApartFindNothing) {
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

TEST_F(WindowByNumberTest, NumberNotInTheWindowListFindsNothing) {
    EXPECT_FALSE(WindowByNumber::find(0x9001, AXElement{}));
    const SimThumbnail shown = desktop.dock().thumbnails().front();
    desktop.window(shown.window)->minimized = true;
    EXPECT_FALSE(WindowByNumber::find(static_cast<std::uint32_t>(shown.window), AXElement{}));
}

TEST_F(WindowByNumberTest, WindowWhoseFrameNoLongerMatchesItsBoundsIsNotGuessed) {
    const SimThumbnail shown = desktop.dock().thumbnails().front();
    desktop.windowServer().frontWindows.push_back(
        {0x4242, desktop.window(shown.window)->pid, "Odd", std::nullopt, 0, Rect{1, 2, 3, 4}});
    EXPECT_FALSE(WindowByNumber::find(0x4242, AXElement{}));
}

}  // namespace
}  // namespace vistrel
