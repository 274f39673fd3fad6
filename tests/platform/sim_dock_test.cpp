#include "platform/sim/sim_dock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "base/hotkey.h"
#include "platform/sim/sim_scene.h"
#include "platform/sim/sim_thumbnail_layout.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

// Thumbnails are rounded to whole points, which moves an aspect ratio a little.
constexpr double aspectSlack = 0.02;
constexpr double rowSlack = 8;

class SimDockTest : public testing::SimTest {
  protected:
    std::vector<WindowDescription> dockWindows() {
        std::vector<WindowDescription> owned;
        const auto list = desktop.windowServer().windowList(WindowListOption::onScreenOnly);
        for (const auto& w : *list) {
            if (w.ownerName == "Dock") owned.push_back(w);
        }
        return owned;
    }

    Pid addWindows(int count, Size size) {
        const Pid pid = desktop.addApplication({0, "com.example.viewer", "Viewer"});
        for (int i = 0; i < count; ++i) {
            SimWindow window;
            window.title = "Picture " + std::to_string(i);
            window.frame = Rect::of({20.0 + i % 20, 40.0 + i % 30}, size);
            desktop.addWindow(pid, window);
        }
        return pid;
    }

    void expectLaidOutLikeMissionControl() {
        const Rect area = SimDock::thumbnailArea(desktop.accessibilityScreenFrames().front());
        const auto& thumbnails = desktop.dock().thumbnails();
        for (std::size_t i = 0; i < thumbnails.size(); ++i) {
            const SimThumbnail& t = thumbnails[i];
            const Rect window = desktop.window(t.window)->frame;
            EXPECT_TRUE(area.contains(t.frame)) << i;
            EXPECT_LE(t.frame.width, window.width * SimThumbnailLayout::largestScale + 1) << i;
            EXPECT_NEAR(t.frame.width / t.frame.height, window.width / window.height,
                        aspectSlack * window.width / window.height)
                << i;
            for (std::size_t j = 0; j < i; ++j) {
                EXPECT_FALSE(t.frame.intersects(thumbnails[j].frame)) << i << " and " << j;
            }
        }
    }
};

TEST_F(SimDockTest, EmptyDesktopHasNoDockUntilLaunched) {
    EXPECT_FALSE(desktop.dock().isRunning());
    EXPECT_TRUE(dockWindows().empty());
    const Pid pid = desktop.dock().launch();
    const auto running = desktop.workspace().application(pid);
    ASSERT_TRUE(running.has_value());
    EXPECT_EQ(running->bundleIdentifier, "com.apple.dock");
    EXPECT_EQ(desktop.dock().launch(), pid);
}

TEST_F(SimDockTest, RunningDockShowsItsBarOnLayer20) {
    desktop.dock().launch();
    const auto windows = dockWindows();
    ASSERT_EQ(windows.size(), 1u);
    EXPECT_EQ(windows[0].layer, SimDock::barLayer);
    EXPECT_EQ(windows[0].ownerPid, desktop.dock().pid());
}

TEST_F(SimDockTest, OpenMissionControlOwnsAWindowOnLayer18InFrontOfEverything) {
    populateDefaultScene(desktop);
    desktop.dock().open();
    const auto list = *desktop.windowServer().windowList(WindowListOption::onScreenOnly);
    EXPECT_EQ(list.front().ownerName, "Dock");
    EXPECT_EQ(list.front().layer, SimDock::missionControlLayer);
    EXPECT_EQ(list.front().bounds, simPrimaryScreen);
    desktop.dock().close();
    EXPECT_EQ(dockWindows().size(), 1u);
    EXPECT_TRUE(desktop.dock().thumbnails().empty());
}

TEST_F(SimDockTest, RestartGivesANewProcessAndClosesMissionControl) {
    desktop.dock().open();
    const Pid first = desktop.dock().pid();
    const Pid second = desktop.dock().restart();
    EXPECT_NE(first, second);
    EXPECT_FALSE(desktop.dock().isOpen());
    EXPECT_FALSE(desktop.workspace().application(first).has_value());
    ASSERT_EQ(dockWindows().size(), 1u);
    EXPECT_EQ(dockWindows()[0].ownerPid, second);
}

TEST_F(SimDockTest, QuitLeavesNoDockProcessOrWindow) {
    desktop.dock().open();
    desktop.dock().quit();
    EXPECT_FALSE(desktop.dock().isRunning());
    EXPECT_TRUE(dockWindows().empty());
    for (const auto& app : desktop.workspace().runningApplications()) {
        EXPECT_NE(app.bundleIdentifier, "com.apple.dock");
    }
}

TEST_F(SimDockTest, OneThumbnailPerVisibleWindow) {
    populateDefaultScene(desktop);
    SimWindow& minimized = *desktop.window(desktop.windows().back().id);
    minimized.minimized = true;
    desktop.dock().open();
    const auto& thumbnails = desktop.dock().thumbnails();
    EXPECT_EQ(thumbnails.size(), desktop.windows().size() - 1);
    for (const SimThumbnail& t : thumbnails)
        EXPECT_NE(t.window, minimized.id);
}

TEST_F(SimDockTest, DefaultSceneIsLaidOutScaledDownInCentredRows) {
    populateDefaultScene(desktop);
    desktop.dock().open();
    expectLaidOutLikeMissionControl();
    // Rows are centred: the leftmost and rightmost margins of each row match.
    const Rect area = SimDock::thumbnailArea(desktop.accessibilityScreenFrames().front());
    std::map<double, std::pair<double, double>> rows;
    for (const SimThumbnail& t : desktop.dock().thumbnails()) {
        // Thumbnails of a row share their middle, give or take the rounding to whole points.
        const double row = std::round(t.frame.midY() / rowSlack);
        auto [it, fresh] = rows.try_emplace(row, t.frame.minX(), t.frame.maxX());
        if (!fresh) {
            it->second.first = std::min(it->second.first, t.frame.minX());
            it->second.second = std::max(it->second.second, t.frame.maxX());
        }
    }
    EXPECT_GT(rows.size(), 1u);
    for (const auto& [y, extent] : rows) {
        EXPECT_NEAR(extent.first - area.minX(), area.maxX() - extent.second, 1.5) << y;
    }
}

TEST_F(SimDockTest, SixtyWindowsAllFitWithoutOverlapping) {
    addWindows(60, {900, 600});
    desktop.dock().open();
    EXPECT_EQ(desktop.dock().thumbnails().size(), 60u);
    expectLaidOutLikeMissionControl();
}

TEST_F(SimDockTest, SingleWindowIsShownAtTheLargestScaleInTheMiddle) {
    addWindows(1, {1000, 600});
    desktop.dock().open();
    const Rect area = SimDock::thumbnailArea(desktop.accessibilityScreenFrames().front());
    const Rect frame = desktop.dock().thumbnails().front().frame;
    EXPECT_EQ(frame.size(), (Size{800, 480}));
    EXPECT_NEAR(frame.midX(), area.midX(), 0.5);
    EXPECT_NEAR(frame.midY(), area.midY(), 0.5);
}

TEST_F(SimDockTest, ClosingAWindowWhileOpenLaysTheThumbnailsOutAgain) {
    populateDefaultScene(desktop);
    desktop.dock().open();
    const std::size_t before = desktop.dock().thumbnails().size();
    desktop.closeWindow(desktop.dock().thumbnails().front().window);
    EXPECT_EQ(desktop.dock().thumbnails().size(), before - 1);
}

TEST_F(SimDockTest, WindowOnTheSecondScreenIsShownThere) {
    desktop.addScreenToTheRight({1920, 1080});
    const Pid pid = desktop.addApplication({0, "com.example.viewer", "Viewer"});
    SimWindow window;
    window.frame = {1600, 200, 800, 600};
    const SimWindowId id = desktop.addWindow(pid, window);
    desktop.dock().open();
    ASSERT_EQ(desktop.dock().thumbnails().size(), 1u);
    EXPECT_EQ(desktop.dock().thumbnails().front().window, id);
    EXPECT_TRUE(
        desktop.accessibilityScreenFrames()[1].contains(desktop.dock().thumbnails().front().frame));
    EXPECT_EQ(dockWindows().size(), 3u);
}

TEST_F(SimDockTest, HitOverAThumbnailIsTheWindowItShows) {
    populateDefaultScene(desktop);
    desktop.dock().open();
    SimAccessibility& ax = desktop.accessibility();
    for (const SimThumbnail& t : desktop.dock().thumbnails()) {
        AXElement hit;
        ASSERT_EQ(ax.elementAtPosition(ax.systemWide(), {t.frame.midX(), t.frame.maxY() - 2}, hit),
                  AXError::success);
        EXPECT_EQ(hit, ax.windowElement(t.window));
    }
}

TEST_F(SimDockTest, HitOverAThumbnailsTitleBarIsATitleWhoseWindowIsShown) {
    populateDefaultScene(desktop);
    desktop.dock().open();
    SimAccessibility& ax = desktop.accessibility();
    const SimThumbnail t = desktop.dock().thumbnails().front();
    AXElement hit;
    ASSERT_EQ(ax.elementAtPosition(ax.systemWide(), {t.frame.midX(), t.frame.minY() + 1}, hit),
              AXError::success);
    EXPECT_EQ(hit, ax.partElement(t.window, SimWindowPart::title));
    AXValue window;
    ASSERT_EQ(ax.copyAttribute(hit, "AXWindow", window), AXError::success);
    EXPECT_EQ(std::get<AXElement>(window), ax.windowElement(t.window));
}

TEST_F(SimDockTest, HitOverMissionControlsBackgroundIsTheDocks) {
    populateDefaultScene(desktop);
    desktop.dock().open();
    SimAccessibility& ax = desktop.accessibility();
    AXElement hit;
    ASSERT_EQ(ax.elementAtPosition(ax.systemWide(), {5, 50}, hit), AXError::success);
    Pid owner = 0;
    ax.pid(hit, owner);
    EXPECT_EQ(owner, desktop.dock().pid());
}

TEST_F(SimDockTest, PostedEscapeLeavesMissionControl) {
    desktop.dock().open();
    desktop.windowServer().postKey(static_cast<std::uint16_t>(KeyCode::escape), true);
    EXPECT_FALSE(desktop.dock().isOpen());
}

TEST_F(SimDockTest, ClickReachingMissionControlOnAThumbnailBringsItsWindowForward) {
    populateDefaultScene(desktop);
    desktop.dock().open();
    const SimThumbnail back = desktop.dock().thumbnails().back();
    desktop.eventTap().deliver(SimInput::mouseDown(back.frame.mid()));
    desktop.eventTap().deliver(SimInput::mouseUp(back.frame.mid()));
    EXPECT_FALSE(desktop.dock().isOpen());
    EXPECT_EQ(desktop.windows().front().id, back.window);
}

TEST_F(SimDockTest, SwallowedClickLeavesMissionControlOpen) {
    populateDefaultScene(desktop);
    desktop.dock().open();
    SimEventTapPort& port = desktop.eventTap();
    port.create(EventTapLocation::hid, ~std::uint64_t{0}, [](const InputEvent&) { return false; });
    port.addToMainRunLoop();
    port.enable(true);
    const Point point = desktop.dock().thumbnails().front().frame.mid();
    EXPECT_FALSE(port.deliver(SimInput::mouseUp(point)));
    EXPECT_TRUE(desktop.dock().isOpen());
    ASSERT_EQ(port.deliveries().size(), 1u);
    EXPECT_FALSE(port.deliveries()[0].passed);
}

TEST(SimDockLayout, NoWindowsGiveNoFrames) {
    EXPECT_TRUE(SimThumbnailLayout::layOut({}, {0, 0, 100, 100}).empty());
}

}  // namespace
}  // namespace vistrel
