// Finder's windows answer no "AXDocument" (nikitabobko/AeroSpace issue 247), so the folder
// each shows comes from Finder's scripting interface, matched by name and frame, and only
// with the user's consent and in time.
#include <gtest/gtest.h>

#include "platform/sim/sim_scene.h"
#include "support/sim_test.h"
#include "windows/finder_folders.h"
#include "windows/window_mover.h"

namespace vistrel::testing {
namespace {

using Window = FinderFolders::Window;

TEST(FinderFoldersParse, EachLineIsAWindowWithItsBoundsAndFolder) {
    const auto windows = FinderFolders::parse(
        "Downloads\t880,470,1400,800\t/Users/ada/Downloads/\n"
        "Café notes\t10,20,110,220\t/Users/ada/Café notes/\n\n");
    ASSERT_EQ(windows.size(), 2u);
    EXPECT_EQ(windows[0],
              (Window{"Downloads", {880, 470, 520, 330}, "file:///Users/ada/Downloads/"}));
    EXPECT_EQ(windows[1].folder, "file:///Users/ada/Caf%C3%A9%20notes/");
}

TEST(FinderFoldersParse, LinesOfAnotherShapeAreLeftOut) {
    EXPECT_TRUE(FinderFolders::parse("Downloads\t880,470,1400\t/Users/ada/\n"
                                     "Downloads\t880,470,1400,800\tUsers/ada/\n"
                                     "Downloads\t880,470,1400,800\n"
                                     "Downloads\t880,470,100,800\t/Users/ada/\n"
                                     "Downloads\ta,b,c,d\t/Users/ada/\n"
                                     "Downloads\t880.5,470,1400,800\t/Users/ada/\n"
                                     "execution error: Not authorized (-1743)\n")
                    .empty());
}

OpenWindow finderWindow(std::string title, Rect frame) {
    OpenWindow window;
    window.bundleID = std::string(FinderFolders::bundleID);
    window.title = std::move(title);
    window.frame = frame;
    return window;
}

TEST(FinderFoldersMatch, TheFolderIsThatOfTheOneWindowWithTheNameAndFrame) {
    const std::vector<Window> finder = {{"Downloads", {880, 470, 520, 330}, "file:///d/"},
                                        {"Downloads", {10, 10, 520, 330}, "file:///e/"}};
    EXPECT_EQ(FinderFolders::folderOf(finderWindow("Downloads", {881, 471, 519, 331}), finder),
              "file:///d/");
    EXPECT_EQ(FinderFolders::folderOf(finderWindow("Downloads", {880, 480, 520, 330}), finder),
              std::nullopt);
    EXPECT_EQ(FinderFolders::folderOf(finderWindow("Documents", {880, 470, 520, 330}), finder),
              std::nullopt);
}

TEST(FinderFoldersMatch, TwoWindowsThatFitAlikeGiveNoFolder) {
    const std::vector<Window> finder = {{"Projects", {0, 25, 700, 400}, "file:///a/Projects/"},
                                        {"Projects", {0, 25, 700, 400}, "file:///b/Projects/"}};
    EXPECT_EQ(FinderFolders::folderOf(finderWindow("Projects", {0, 25, 700, 400}), finder),
              std::nullopt);
}

class FinderFoldersTest : public SimTest {
  protected:
    FinderFoldersTest() { populateDefaultScene(desktop); }
    std::vector<OpenWindow> filled() {
        std::vector<OpenWindow> windows = WindowMover::visibleWindows();
        FinderFolders::fill(windows);
        return windows;
    }
    Pid notesPid() {
        for (const SimApplication& app : desktop.applications()) {
            if (app.bundleIdentifier == "com.apple.Notes") return app.pid;
        }
        return 0;
    }
    // A window of Notes, which answers "AXDocument", showing the document.
    void openInNotes(const std::string& title, const std::string& document) {
        SimWindow window;
        window.title = title;
        window.frame = {100, 100, 500, 400};
        window.document = document;
        desktop.addWindow(notesPid(), window);
    }
    static std::optional<std::string> documentOf(const std::vector<OpenWindow>& windows,
                                                 const std::string& title) {
        for (const OpenWindow& window : windows) {
            if (window.title == title) return window.document;
        }
        return std::nullopt;
    }
};

TEST_F(FinderFoldersTest, FinderWindowsGetTheirFoldersFromOneScript) {
    const auto windows = filled();
    EXPECT_EQ(documentOf(windows, "Downloads"), "file:///Users/ada/Downloads/");
    EXPECT_EQ(documentOf(windows, "Applications"), "file:///Applications/");
    EXPECT_EQ(desktop.scripts().scripts.size(), 1u);
}

TEST_F(FinderFoldersTest, WithoutConsentFinderWindowsHaveNoFolderAndTheLogSaysWhy) {
    desktop.scripts().automationAllowed = false;
    const auto windows = filled();
    EXPECT_EQ(documentOf(windows, "Downloads"), std::nullopt);
    EXPECT_EQ(desktop.systemLog().count("layouts: Finder did not say which folders its windows "
                                        "show (is Vistrel allowed to control Finder?)"),
              1u);
}

TEST_F(FinderFoldersTest, AFinderThatNeverAnswersIsGivenUpAfterItsTimeOut) {
    desktop.scripts().hangs = true;
    const double before = desktop.clock().now();
    const auto windows = filled();
    EXPECT_EQ(documentOf(windows, "Downloads"), std::nullopt);
    EXPECT_DOUBLE_EQ(desktop.clock().now() - before, FinderFolders::timeout);
}

TEST_F(FinderFoldersTest, FinderIsNotAskedWhenNoFinderWindowIsListed) {
    std::vector<OpenWindow> windows = WindowMover::visibleWindows();
    std::erase_if(windows,
                  [](const OpenWindow& w) { return w.bundleID == FinderFolders::bundleID; });
    FinderFolders::fill(windows);
    EXPECT_TRUE(desktop.scripts().scripts.empty());
}

TEST_F(FinderFoldersTest, OtherApplicationsDocumentsComeFromTheirAXDocument) {
    openInNotes("Notes.txt", "file:///Users/ada/Notes.txt");
    const auto windows = WindowMover::visibleWindows();
    EXPECT_EQ(documentOf(windows, "Notes.txt"), "file:///Users/ada/Notes.txt");
    // Finder answers none through accessibility.
    EXPECT_EQ(documentOf(windows, "Downloads"), std::nullopt);
}

TEST_F(FinderFoldersTest, AnAXDocumentThatIsNotALocalFileIsNoDocument) {
    openInNotes("Example", "https://example.com/");
    EXPECT_EQ(documentOf(WindowMover::visibleWindows(), "Example"), std::nullopt);
}

}  // namespace
}  // namespace vistrel::testing
