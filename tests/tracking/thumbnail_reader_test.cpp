#include "tracking/thumbnail_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/sim_test.h"

namespace vistrel {
namespace {

constexpr Rect firstFrame{100, 120, 300, 200};
constexpr Rect secondFrame{450, 120, 300, 200};

class ThumbnailReaderTest : public testing::SimTest {
  protected:
    Pid addApplicationWithWindows(int count) {
        const Pid pid = desktop.addApplication({0, "com.example.editor", "Editor"});
        for (int i = 0; i < count; ++i) {
            SimWindow window;
            window.title = "Document " + std::to_string(i + 1);
            window.frame = {40.0 + 10 * (i % 30), 60.0 + 5 * (i % 40), 800, 500};
            desktop.addWindow(pid, window);
        }
        return pid;
    }

    std::vector<Rect> simulatedFrames() {
        std::vector<Rect> frames;
        for (const SimThumbnail& thumbnail : desktop.dock().thumbnails()) {
            frames.push_back(thumbnail.frame);
        }
        return frames;
    }

    // A free node of the Dock's tree (the Dock runs from the first one on).
    AXElement node(std::map<std::string, AXValue> attributes) {
        SimAccessibility& ax = desktop.accessibility();
        return ax.nodeElement(ax.addNode(desktop.dock().launch(), std::move(attributes)));
    }
    AXElement group(std::string identifier, std::vector<AXElement> children) {
        return node({{"AXIdentifier", std::move(identifier)}, {"AXChildren", std::move(children)}});
    }
    AXElement thumbnail(Rect frame) { return node({{"AXFrame", frame}}); }
    // Replaces the Dock's children with a tree of the test's own.
    void dockChildren(std::vector<AXElement> children) {
        desktop.accessibility().applicationChildren[desktop.dock().pid()] = std::move(children);
    }

    ThumbnailReader reader;
};

TEST_F(ThumbnailReaderTest, DockNotRunningGivesNothingAndTheNextCallLooksAgain) {
    addApplicationWithWindows(2);
    EXPECT_TRUE(reader.frames().empty());
    EXPECT_EQ(reader.dockPid(), 0);
    desktop.dock().open();
    EXPECT_EQ(reader.frames(), simulatedFrames());
    EXPECT_EQ(reader.dockPid(), desktop.dock().pid());
}

TEST_F(ThumbnailReaderTest, ReadsTheThumbnailsOfMissionControlInTreeOrder) {
    addApplicationWithWindows(5);
    desktop.dock().open();
    const auto frames = reader.frames();
    EXPECT_EQ(frames.size(), 5u);
    EXPECT_EQ(frames, simulatedFrames());
}

TEST_F(ThumbnailReaderTest, MissionControlClosedGivesNothing) {
    addApplicationWithWindows(3);
    desktop.dock().launch();
    EXPECT_TRUE(reader.frames().empty());
    EXPECT_EQ(reader.dockPid(), desktop.dock().pid());
}

// One walk reads "AXChildren" of every node it visits (the Dock, "mc", each display and
// each "mc.windows" group), "AXIdentifier" of the Dock's children, of each display's
// children and of every thumbnail, "AXFrame" of each display holding thumbnails and of
// every thumbnail, and "AXTitle" of every thumbnail. The simulated Dock has two children
// (its bar and "mc"), one display with two children ("mc.spaces" and "mc.windows").
void expectReadsOfOneWalk(SimAccessibility& ax, std::size_t thumbnails) {
    constexpr std::size_t nodesVisited = 4;
    constexpr std::size_t dockChildren = 2;
    constexpr std::size_t displayChildren = 2;
    constexpr std::size_t displays = 1;
    EXPECT_EQ(ax.attributeReads("AXChildren"), nodesVisited);
    EXPECT_EQ(ax.attributeReads("AXIdentifier"), dockChildren + displayChildren + thumbnails);
    EXPECT_EQ(ax.attributeReads("AXFrame"), displays + thumbnails);
    EXPECT_EQ(ax.attributeReads("AXTitle"), thumbnails);
    EXPECT_EQ(ax.attributeReads(),
              nodesVisited + dockChildren + displayChildren + displays + 3 * thumbnails);
}

class ThumbnailReadCount : public ThumbnailReaderTest, public ::testing::WithParamInterface<int> {};

TEST_P(ThumbnailReadCount, OneWalkReadsOnceNodeByNodeAndFrameByFrame) {
    const int count = GetParam();
    addApplicationWithWindows(count);
    desktop.dock().open();
    desktop.accessibility().resetCounts();
    EXPECT_EQ(reader.frames().size(), static_cast<std::size_t>(count));
    expectReadsOfOneWalk(desktop.accessibility(), static_cast<std::size_t>(count));
}

INSTANTIATE_TEST_SUITE_P(Thumbnails, ThumbnailReadCount, ::testing::Values(0, 1, 60));

TEST_F(ThumbnailReaderTest, DockElementIsMadeOncePerDockProcessWithItsTimeout) {
    addApplicationWithWindows(2);
    desktop.dock().open();
    // Every element of the tree gets the Dock's time-out on each read; the Dock's own
    // element only when it is made, on the first.
    const std::size_t before = desktop.accessibility().timeoutsSet();
    reader.frames();
    const std::size_t first = desktop.accessibility().timeoutsSet() - before;
    reader.frames();
    const std::size_t second = desktop.accessibility().timeoutsSet() - before - first;
    EXPECT_EQ(second, first - 1);
    const AXElement dock = desktop.accessibility().application(desktop.dock().pid());
    EXPECT_FLOAT_EQ(desktop.accessibility().messagingTimeout(dock), 0.3f);
}

TEST_F(ThumbnailReaderTest, RestartedDockGetsANewElementOnTheFirstCall) {
    addApplicationWithWindows(2);
    desktop.dock().open();
    reader.frames();
    const Pid first = reader.dockPid();
    const Pid second = desktop.dock().restart();
    ASSERT_NE(first, second);
    desktop.dock().open();
    EXPECT_EQ(reader.frames(), simulatedFrames());
    EXPECT_EQ(reader.dockPid(), second);
    const AXElement dock = desktop.accessibility().application(second);
    EXPECT_FLOAT_EQ(desktop.accessibility().messagingTimeout(dock), 0.3f);
}

TEST_F(ThumbnailReaderTest, DockThatQuitKeepsTheCacheUntilAnotherIsFound) {
    desktop.dock().open();
    reader.frames();
    const Pid first = reader.dockPid();
    desktop.dock().quit();
    EXPECT_TRUE(reader.frames().empty());
    EXPECT_EQ(reader.dockPid(), first);
}

TEST_F(ThumbnailReaderTest, HungDockCostsOneTimeoutOfTheDockElement) {
    addApplicationWithWindows(2);
    desktop.dock().open();
    desktop.application(desktop.dock().pid())->hung = true;
    const double start = desktop.clock().now();
    EXPECT_TRUE(reader.frames().empty());
    EXPECT_NEAR(desktop.clock().now() - start, ThumbnailReader::dockTimeout, 1e-6);
}

TEST_F(ThumbnailReaderTest, ContainerWhoseGroupsCarryOtherIdentifiersGivesNothing) {
    dockChildren(
        {group("mc", {group("mc.display", {group("mc.spaces", {thumbnail(firstFrame)}),
                                           group("mc.other", {thumbnail(secondFrame)})})})});
    EXPECT_TRUE(reader.frames().empty());
}

TEST_F(ThumbnailReaderTest, ThumbnailsWithoutARectangleFrameAreSkipped) {
    dockChildren(
        {group("mc", {group("mc.display", {group("mc.windows", {thumbnail(firstFrame), node({}),
                                                                node({{"AXFrame", Point{5, 5}}}),
                                                                thumbnail(secondFrame)})})})});
    EXPECT_EQ(reader.frames(), (std::vector<Rect>{firstFrame, secondFrame}));
}

TEST_F(ThumbnailReaderTest, EveryMissionControlContainerIsWalkedInOrder) {
    dockChildren({group("mc", {group("a", {group("mc.windows", {thumbnail(secondFrame)})})}),
                  group("mc", {group("b", {group("mc.windows", {thumbnail(firstFrame)})})})});
    EXPECT_EQ(reader.frames(), (std::vector<Rect>{secondFrame, firstFrame}));
}

TEST_F(ThumbnailReaderTest, ChildrenWithoutATextIdentifierAreSkipped) {
    const AXElement windows = group("mc.windows", {thumbnail(firstFrame)});
    dockChildren({node({{"AXIdentifier", std::int64_t{7}}, {"AXChildren", std::vector{windows}}}),
                  node({{"AXChildren", std::vector{windows}}}),
                  group("mc", {group("d", {windows})})});
    EXPECT_EQ(reader.frames(), (std::vector<Rect>{firstFrame}));
}

TEST_F(ThumbnailReaderTest, WalkStopsAtTheFixedDepth) {
    // A "mc.windows" group one level deeper than the walk goes is not found.
    dockChildren(
        {group("mc", {group("d", {group("x", {group("mc.windows", {thumbnail(firstFrame)})})})})});
    EXPECT_TRUE(reader.frames().empty());
}

}  // namespace
}  // namespace vistrel
