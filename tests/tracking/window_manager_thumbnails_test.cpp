#include "tracking/window_manager_thumbnails.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/sim/sim_scene.h"
#include "support/sim_test.h"
#include "tracking/thumbnail_reader.h"

namespace vistrel {
namespace {

class WindowManagerThumbnailsTest : public testing::SimTest {
  protected:
    WindowManagerThumbnailsTest() {
        desktop.systemInfo().version = {27, 0, 0};
        populateDefaultScene(desktop);
    }

    std::vector<Rect> simulatedFrames() {
        std::vector<Rect> frames;
        for (const SimThumbnail& thumbnail : desktop.dock().thumbnails())
            frames.push_back(thumbnail.frame);
        return frames;
    }

    WindowManagerThumbnails reader;
};

TEST_F(WindowManagerThumbnailsTest, ReadsTheCurrentDesktopsThumbnailsWithTheirWindows) {
    desktop.dock().open();
    const auto thumbnails = reader.read();
    ASSERT_EQ(thumbnails.size(), desktop.dock().thumbnails().size());
    for (std::size_t i = 0; i < thumbnails.size(); ++i) {
        EXPECT_EQ(thumbnails[i].frame, desktop.dock().thumbnails()[i].frame);
        EXPECT_EQ(thumbnails[i].window, desktop.dock().thumbnails()[i].window);
    }
    EXPECT_EQ(reader.pid(), desktop.dock().windowManagerPid());
}

TEST_F(WindowManagerThumbnailsTest, OtherDesktopsThumbnailsAreLeftOut) {
    desktop.dock().open();
    for (const MissionControlThumbnail& thumbnail : reader.read()) {
        for (const SimOtherDesktopWindow& other : desktop.dock().otherDesktop) {
            EXPECT_NE(thumbnail.window, other.number);
        }
    }
    EXPECT_EQ(reader.read().size(), desktop.dock().thumbnails().size());
}

TEST_F(WindowManagerThumbnailsTest, MissionControlClosedOrWindowManagerAbsentGivesNothing) {
    EXPECT_TRUE(reader.read().empty());
    desktop.dock().open();
    desktop.dock().close();
    EXPECT_TRUE(reader.read().empty());
}

TEST_F(WindowManagerThumbnailsTest, OnlyChildrenNamingAnOnScreenWindowWithAFrameCount) {
    desktop.dock().open();
    desktop.dock().close();  // WindowManager runs on; the test gives it a tree of its own
    SimAccessibility& ax = desktop.accessibility();
    const Pid windowManager = desktop.dock().windowManagerPid();
    const auto node = [&](std::map<std::string, AXValue> attributes) {
        return ax.nodeElement(ax.addNode(windowManager, std::move(attributes)));
    };
    const auto onScreen = static_cast<std::int64_t>(desktop.windows().front().id);
    const Rect frame{100, 100, 200, 150};
    const AXElement kept = node({{"wid", onScreen}, {"AXFrame", frame}});
    const AXElement display =
        node({{"AXIdentifier", std::string("mc.display")},
              {"AXChildren",
               std::vector<AXElement>{node({{"AXIdentifier", std::string("mc.spaces")}}),
                                      node({{"wid", std::int64_t{0x9001}}, {"AXFrame", frame}}),
                                      node({{"wid", std::string("12")}, {"AXFrame", frame}}),
                                      node({{"wid", 12.5}, {"AXFrame", frame}}),
                                      node({{"wid", std::int64_t{-3}}, {"AXFrame", frame}}),
                                      node({{"wid", onScreen}}), kept}}});
    ax.applicationChildren[windowManager] = {
        display, node({{"AXIdentifier", std::string("mc")}, {"AXChildren", std::vector{kept}}})};

    const auto thumbnails = reader.read();
    ASSERT_EQ(thumbnails.size(), 1u);
    EXPECT_EQ(thumbnails.front().element, kept);
    EXPECT_EQ(thumbnails.front().frame, frame);
    EXPECT_EQ(thumbnails.front().window, static_cast<std::uint32_t>(onScreen));
}

TEST_F(WindowManagerThumbnailsTest, WindowNumberReadsFromAnIntegerOrAWholeFloatingValue) {
    SimAccessibility& ax = desktop.accessibility();
    const Pid owner = desktop.dock().launch();
    const auto numbered = [&](AXValue number) {
        return WindowManagerThumbnails::windowOf(
            ax.nodeElement(ax.addNode(owner, {{"wid", std::move(number)}})));
    };
    EXPECT_EQ(numbered(std::int64_t{4117}), 4117u);
    EXPECT_EQ(numbered(4117.0), 4117u);
    EXPECT_FALSE(numbered(4117.5));
    EXPECT_FALSE(numbered(std::int64_t{0}));
    EXPECT_FALSE(numbered(std::int64_t{1} << 40));
    EXPECT_FALSE(numbered(std::string("4117")));
}

// macOS told 26 to a program linked against an older SDK; the Dock's empty "mc" stub then
// sends the reader on to WindowManager, which holds the displays.
TEST_F(WindowManagerThumbnailsTest, AnOlderVersionToldStillFindsWindowManagersThumbnails) {
    desktop.dock().open();
    ThumbnailReader dockReader;
    desktop.systemInfo().version = {16, 0, 0};
    const ThumbnailReader::Read read = dockReader.read();
    EXPECT_EQ(read.host, MissionControlHost::windowManager);
    EXPECT_EQ(dockReader.frames(), simulatedFrames());
    EXPECT_EQ(dockReader.dockPid(), desktop.dock().windowManagerPid());
}

// One read asks WindowManager for its children, each display for its identifier, its frame
// and its children, each child of a display for its "wid", each child not of another
// desktop for its identifier, and each current thumbnail for its frame and title; and the
// window server once for the on-screen list.
TEST_F(WindowManagerThumbnailsTest, OneReadCostsFourCallsPerThumbnailAndOneWindowList) {
    for (int i = 0; i < 54; ++i) {
        SimWindow window;
        window.title = "Page " + std::to_string(i);
        window.frame = {40.0 + i, 60.0 + i, 700, 450};
        desktop.addWindow(desktop.windows().front().pid, window);
    }
    desktop.dock().open();
    const std::size_t shown = desktop.dock().thumbnails().size();
    ASSERT_EQ(shown, 60u);
    const std::size_t others = desktop.dock().otherDesktop.size();
    desktop.accessibility().resetCounts();
    const int listsBefore = desktop.windowServer().listQueries();
    EXPECT_EQ(reader.read().size(), shown);
    const std::size_t spacesGroup = 1;
    EXPECT_EQ(desktop.accessibility().attributeReads("wid"), shown + others + spacesGroup);
    const std::size_t display = 1;
    EXPECT_EQ(desktop.accessibility().attributeReads("AXFrame"), shown + display);
    EXPECT_EQ(desktop.accessibility().attributeReads("AXTitle"), shown);
    EXPECT_EQ(desktop.accessibility().attributeReads("AXChildren"), 2u);
    EXPECT_EQ(desktop.accessibility().attributeReads("AXIdentifier"),
              display + shown + spacesGroup);
    EXPECT_EQ(desktop.windowServer().listQueries() - listsBefore, 1);
}

}  // namespace
}  // namespace vistrel
