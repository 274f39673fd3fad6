#include "windows/window_mover.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "recording_accessibility.h"
#include "window_test.h"

namespace vistrel {
namespace {

using testing::RecordingAccessibility;
using testing::WindowTest;
using Write = RecordingAccessibility::Write;

constexpr Rect reportFrame{100, 100, 800, 600};
constexpr Rect inboxFrame{300, 200, 700, 500};
constexpr Rect target{0, 25, 720, 805};

class WindowMoverTest : public WindowTest {
  protected:
    WindowMoverTest() {
        pages = addApp("com.apple.iWork.Pages", "Pages");
        mail = addApp("com.apple.mail", "Mail");
        report = addWindow(pages, "Report", reportFrame);
        inbox = addWindow(mail, "Inbox", inboxFrame);
    }

    RunningApplication running(Pid pid) { return *desktop.workspace().application(pid); }

    std::vector<std::string> titles(const std::vector<OpenWindow>& windows) {
        std::vector<std::string> found;
        for (const OpenWindow& w : windows)
            found.push_back(w.title);
        return found;
    }

    std::vector<std::string> visibleTitles() { return titles(WindowMover::visibleWindows()); }

    Pid pages = 0;
    Pid mail = 0;
    SimWindowId report = 0;
    SimWindowId inbox = 0;
};

TEST_F(WindowMoverTest, VisibleWindowsComeFrontMostFirstWithTheirApplicationTitleAndFrame) {
    const std::vector<OpenWindow> expected{
        {{element(inbox), mail}, "com.apple.mail", "Mail", "Inbox", inboxFrame, false},
        {{element(report), pages}, "com.apple.iWork.Pages", "Pages", "Report", reportFrame, false}};

    EXPECT_EQ(WindowMover::visibleWindows(), expected);
}

TEST_F(WindowMoverTest, RaisingAWindowMovesItToTheFrontOfTheList) {
    desktop.bringToFront(report);

    EXPECT_EQ(visibleTitles(), (std::vector<std::string>{"Report", "Inbox"}));
}

TEST_F(WindowMoverTest, AWindowFiftyNinePointsWideOrThirtyNineHighIsNotListed) {
    addWindow(pages, "Narrow", {0, 0, 59, 300});
    addWindow(pages, "Flat", {0, 0, 300, 39});
    addWindow(pages, "Smallest", {0, 0, 60, 40});

    EXPECT_EQ(titles(WindowMover::windows(running(pages), false)),
              (std::vector<std::string>{"Smallest", "Report"}));
}

TEST_F(WindowMoverTest, SheetsDialogsAndPanelsAreNotListed) {
    for (const char* subrole : {"AXDialog", "AXSystemDialog", "AXFloatingWindow", ""}) {
        window(addWindow(pages, subrole, {0, 0, 400, 300})).subrole = subrole;
    }

    EXPECT_EQ(titles(WindowMover::windows(running(pages), false)),
              std::vector<std::string>{"Report"});
}

TEST_F(WindowMoverTest, MinimizedWindowsAreListedOnlyWhenAskedFor) {
    window(report).minimized = true;

    EXPECT_TRUE(WindowMover::windows(running(pages), false).empty());
    const auto all = WindowMover::windows(running(pages), true);
    ASSERT_EQ(all.size(), 1u);
    EXPECT_TRUE(all.front().minimized);
    EXPECT_EQ(visibleTitles(), std::vector<std::string>{"Inbox"});
}

TEST_F(WindowMoverTest, AnApplicationWithoutABundleIdentifierHasNoWindows) {
    RunningApplication anonymous = running(pages);
    anonymous.bundleIdentifier.reset();

    EXPECT_TRUE(WindowMover::windows(anonymous, false).empty());
}

TEST_F(WindowMoverTest, AnApplicationWithoutANameListsItsWindowsWithAnEmptyName) {
    desktop.application(pages)->name = "";

    const auto windows = WindowMover::windows(running(pages), false);
    ASSERT_EQ(windows.size(), 1u);
    EXPECT_EQ(windows.front().app, "");
}

TEST_F(WindowMoverTest, ListingTheWindowsOfAHungApplicationGivesUpAfterHalfASecond) {
    desktop.application(pages)->hung = true;
    const double start = desktop.clock().now();

    EXPECT_TRUE(WindowMover::windows(running(pages), false).empty());
    EXPECT_NEAR(elapsedSince(start), 0.5, 1e-6);
}

TEST_F(WindowMoverTest, TwoWindowsWithIdenticalFramesShareARankAndKeepTheApplicationsOrder) {
    // Front to back: Copy (Pages), Inbox (Mail), Report (Pages). Report has Copy's frame,
    // so it ranks with Copy, ahead of Inbox.
    desktop.bringToFront(inbox);
    addWindow(pages, "Copy", reportFrame);

    EXPECT_EQ(visibleTitles(), (std::vector<std::string>{"Copy", "Report", "Inbox"}));
}

TEST_F(WindowMoverTest, AWindowTheWindowServerDoesNotListSortsAfterAllRankedWindows) {
    // Pages comes first in the workspace; its window stands for one on another Space,
    // missing from the window server's normal layer.
    window(report).layer = 3;
    desktop.bringToFront(report);

    EXPECT_EQ(visibleTitles(), (std::vector<std::string>{"Inbox", "Report"}));
}

TEST_F(WindowMoverTest, WithoutAWindowListTheWindowsKeepTheWorkspaceOrder) {
    desktop.windowServer().listFails = true;

    EXPECT_EQ(visibleTitles(), (std::vector<std::string>{"Report", "Inbox"}));
}

TEST_F(WindowMoverTest, TheWindowServerMayReportADifferentHeightForTheSameWindow) {
    Rect taller = reportFrame;
    taller.height += 30;
    desktop.windowServer().frontWindows.push_back({1, pages, "Pages", "Report", 0, taller});

    EXPECT_EQ(visibleTitles(), (std::vector<std::string>{"Report", "Inbox"}));
}

TEST_F(WindowMoverTest, BoundsTwoPointsOffTheFrameAreAnotherWindow) {
    Rect shifted = reportFrame;
    shifted.x += WindowMover::rankTolerance;
    desktop.windowServer().frontWindows.push_back({1, pages, "Pages", "Report", 0, shifted});

    EXPECT_EQ(visibleTitles(), (std::vector<std::string>{"Inbox", "Report"}));
}

TEST_F(WindowMoverTest, TheAgentHiddenApplicationsAndApplicationsWithoutADockIconAreNeverListed) {
    const Pid agent =
        addApp("com.quillmarsh.vistrel", "Vistrel", ActivationPolicy::regular, desktop.ownPid);
    addWindow(agent, "Layouts", {0, 0, 400, 300});
    const Pid hidden = addApp("com.apple.Music", "Music");
    addWindow(hidden, "Music", {0, 0, 400, 300});
    desktop.application(hidden)->hidden = true;
    const Pid accessory = addApp("com.example.clipboard", "Clipboard", ActivationPolicy::accessory);
    addWindow(accessory, "History", {0, 0, 400, 300});
    const Pid background = addApp("com.example.daemon", "Daemon", ActivationPolicy::prohibited);
    addWindow(background, "Status", {0, 0, 400, 300});

    EXPECT_EQ(visibleTitles(), (std::vector<std::string>{"Inbox", "Report"}));
}

TEST_F(WindowMoverTest, TheZOrderKeepsNormalWindowsWithAnOwnerAndBounds) {
    auto& front = desktop.windowServer().frontWindows;
    front.push_back({1, 7, "Dock", "", 20, Rect{0, 830, 1440, 70}});
    front.push_back({2, std::nullopt, "?", "", 0, Rect{0, 0, 10, 10}});
    front.push_back({3, 8, "?", "", 0, std::nullopt});
    front.push_back({4, 9, "?", "", std::nullopt, Rect{0, 0, 10, 10}});

    EXPECT_EQ(WindowMover::zOrder(),
              (std::vector<WindowMover::ZOrderEntry>{{mail, inboxFrame}, {pages, reportFrame}}));
}

TEST_F(WindowMoverTest, NoWindowListGivesAnEmptyZOrder) {
    desktop.windowServer().listFails = true;

    EXPECT_TRUE(WindowMover::zOrder().empty());
}

TEST_F(WindowMoverTest, TheFrameFallsBackToPositionAndSize) {
    const SimNodeId node = desktop.accessibility().addNode(
        pages, {{"AXPosition", Point{10, 20}}, {"AXSize", Size{300, 200}}});

    EXPECT_EQ(WindowMover::frame(desktop.accessibility().nodeElement(node)),
              (Rect{10, 20, 300, 200}));
}

TEST_F(WindowMoverTest, APositionOrSizeOfTheWrongTypeGivesNoFrame) {
    auto& ax = desktop.accessibility();
    const SimNodeId textPosition =
        ax.addNode(pages, {{"AXPosition", std::string("10,20")}, {"AXSize", Size{300, 200}}});
    const SimNodeId noSize = ax.addNode(pages, {{"AXPosition", Point{10, 20}}});

    EXPECT_EQ(WindowMover::frame(ax.nodeElement(textPosition)), std::nullopt);
    EXPECT_EQ(WindowMover::frame(ax.nodeElement(noSize)), std::nullopt);
}

TEST_F(WindowMoverTest, SetFrameWritesPositionThenSizeThenPositionAgain) {
    RecordingAccessibility recording(desktop.platform());

    EXPECT_TRUE(WindowMover::setFrame(pages, element(report), target));

    EXPECT_EQ(window(report).frame, target);
    EXPECT_EQ(recording.writes, (std::vector<Write>{{"AXPosition", target.origin()},
                                                    {"AXSize", target.size()},
                                                    {"AXPosition", target.origin()}}));
}

TEST_F(WindowMoverTest, SetFrameSwitchesTheEnhancedInterfaceOffForTheMoveAndOnAgain) {
    desktop.application(pages)->enhancedUserInterface = true;
    RecordingAccessibility recording(desktop.platform());

    EXPECT_TRUE(WindowMover::setFrame(pages, element(report), target));

    EXPECT_TRUE(desktop.application(pages)->enhancedUserInterface);
    EXPECT_EQ(recording.writes, (std::vector<Write>{{"AXEnhancedUserInterface", false},
                                                    {"AXPosition", target.origin()},
                                                    {"AXSize", target.size()},
                                                    {"AXPosition", target.origin()},
                                                    {"AXEnhancedUserInterface", true}}));
}

TEST_F(WindowMoverTest, ARefusedSizeFailsButTheWindowIsStillPlacedAndTheInterfaceRestored) {
    desktop.application(pages)->enhancedUserInterface = true;
    window(report).sizeSettable = false;

    EXPECT_FALSE(WindowMover::setFrame(pages, element(report), target));

    EXPECT_EQ(window(report).frame, Rect::of(target.origin(), reportFrame.size()));
    EXPECT_TRUE(desktop.application(pages)->enhancedUserInterface);
}

TEST_F(WindowMoverTest, ARefusedPositionDoesNotCountAgainstTheMove) {
    window(report).positionSettable = false;

    EXPECT_TRUE(WindowMover::setFrame(pages, element(report), target));
    EXPECT_EQ(window(report).frame, Rect::of(reportFrame.origin(), target.size()));
}

TEST_F(WindowMoverTest, ARectangleWithoutAFiniteValueIsNotWrittenButTheInterfaceIsRestored) {
    desktop.application(pages)->enhancedUserInterface = true;
    RecordingAccessibility recording(desktop.platform());
    const Rect broken{0, 0, std::numeric_limits<double>::quiet_NaN(), 300};

    EXPECT_FALSE(WindowMover::setFrame(pages, element(report), broken));

    EXPECT_EQ(window(report).frame, reportFrame);
    EXPECT_EQ(recording.writes, (std::vector<Write>{{"AXEnhancedUserInterface", false},
                                                    {"AXEnhancedUserInterface", true}}));
}

TEST_F(WindowMoverTest, SetFrameGivesTheWindowAndItsApplicationOneSecond) {
    WindowMover::setFrame(pages, element(report), target);

    auto& ax = desktop.accessibility();
    EXPECT_FLOAT_EQ(ax.messagingTimeout(element(report)), 1.0f);
    EXPECT_FLOAT_EQ(ax.messagingTimeout(ax.application(pages)), 1.0f);
}

TEST_F(WindowMoverTest, FullScreenIsReadFromTheWindowAndFalseWhenUnreadable) {
    window(inbox).fullScreen = true;
    window(report).fullScreen = true;
    desktop.closeWindow(report);

    EXPECT_TRUE(WindowMover::isFullScreen(element(inbox)));
    EXPECT_FALSE(WindowMover::isFullScreen(element(report)));
    window(inbox).fullScreen = false;
    EXPECT_FALSE(WindowMover::isFullScreen(element(inbox)));
}

TEST_F(WindowMoverTest, TheLayoutsQueueIsMadeOnceWithItsLabel) {
    const auto queue = WindowMover::queue();

    EXPECT_EQ(queue->label(), "com.quillmarsh.vistrel.layouts");
    EXPECT_EQ(WindowMover::queue(), queue);
}

}  // namespace
}  // namespace vistrel
