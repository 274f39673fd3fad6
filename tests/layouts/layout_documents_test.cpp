// Windows that show files go back by their files: several windows of one application each
// to their own places, a window that was closed opened again on its file, a file that has
// gone skipped and counted.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "base/file_url.h"
#include "layout_actions_test.h"
#include "support/temp_dir.h"
#include "windows/screens.h"

namespace vistrel::testing {
namespace {

using Window = SavedLayout::Window;

constexpr const char* editorBundle = "com.example.editor";
constexpr const char* finderBundle = "com.apple.finder";
// Four quadrants of the visible frame, and the frames they give with no gap.
const UnitRect quadrants[] = {
    {0, 0, 0.5, 0.5}, {0.5, 0, 0.5, 0.5}, {0, 0.5, 0.5, 0.5}, {0.5, 0.5, 0.5, 0.5}};
// The scene's visible frame, in accessibility coordinates.
constexpr Rect visibleFrame{0, 25, 1440, 805};
const Rect quadrantFrames[] = {
    quadrants[0].frame(visibleFrame, 0), quadrants[1].frame(visibleFrame, 0),
    quadrants[2].frame(visibleFrame, 0), quadrants[3].frame(visibleFrame, 0)};

class LayoutDocumentsTest : public LayoutActionsTest {
  protected:
    LayoutDocumentsTest() {
        SimWindow untitled;
        untitled.title = "Untitled";
        untitled.frame = {200, 200, 600, 400};
        desktop.installations().install({editorBundle,
                                         "Editor",
                                         "/Applications/Editor.app",
                                         Color::fromRGB(0xFF9500),
                                         {untitled}});
        editor_ = desktop.addApplication({0, editorBundle, "Editor"});
    }

    // A real file (or folder) in the test's folder, and its URL.
    std::string file(const std::string& name) {
        std::ofstream(folder.path() / name) << "text";
        return FileURL::of((folder.path() / name).string());
    }
    std::string subfolder(const std::string& path) {
        std::filesystem::create_directories(folder.path() / path);
        return FileURL::of((folder.path() / path).string() + "/");
    }
    SimWindowId open(Pid pid, const std::string& title, const std::string& document, Rect frame) {
        SimWindow window;
        window.title = title;
        window.document = document;
        window.frame = frame;
        return desktop.addWindow(pid, window);
    }
    std::optional<SimWindowId> showing(const std::string& document) {
        for (const SimWindow& window : desktop.windows()) {
            if (!window.closed && window.document == document) return window.id;
        }
        return std::nullopt;
    }
    Rect frameOf(const std::string& document) {
        const auto id = showing(document);
        return id ? desktop.window(*id)->frame : Rect{};
    }
    static Window saved(const char* bundle, const std::string& title, const std::string& document,
                        UnitRect rect) {
        return {bundle, "", title, rect, std::nullopt, document};
    }
    LayoutActions::Restored restoreFully(const SavedLayout& layout) {
        LayoutActions::Restored outcome;
        LayoutActions::restore(layout, [&](const LayoutActions::Restored& r) { outcome = r; });
        run();
        return outcome;
    }

    static Window notesOnTheRight() {
        return {"com.apple.Notes", "Notes", "Notes", quadrants[1], std::nullopt};
    }

    TempDir folder;
    Pid editor_ = 0;
};

TEST_F(LayoutDocumentsTest, FourFinderWindowsOnFourFoldersGoBackToTheirOwnPlacesAfterAShuffle) {
    const Pid finder = pidOf(finderBundle);
    std::vector<std::string> folders;
    for (const char* parent : {"a", "b", "c", "d"})
        folders.push_back(subfolder(std::string(parent) + "/src"));
    for (std::size_t i = 0; i < folders.size(); ++i)
        open(finder, "src", folders[i], quadrantFrames[i]);
    std::optional<SavedLayout> layout;
    LayoutActions::captureCurrent([&](std::optional<SavedLayout> captured) { layout = captured; });
    run();
    ASSERT_TRUE(layout);
    // The user moves them about: each now stands where the next one stood.
    for (std::size_t i = 0; i < folders.size(); ++i)
        desktop.window(*showing(folders[i]))->frame = quadrantFrames[(i + 1) % 4];

    restoreFully(*layout);

    for (std::size_t i = 0; i < folders.size(); ++i)
        EXPECT_EQ(frameOf(folders[i]), quadrantFrames[i]) << FileURL::name(folders[i]);
}

TEST_F(LayoutDocumentsTest, AFinderFolderIsSavedWithTheWindow) {
    const std::string src = subfolder("a/src");
    open(pidOf(finderBundle), "src", src, quadrantFrames[0]);
    std::optional<SavedLayout> layout;
    LayoutActions::captureCurrent([&](std::optional<SavedLayout> captured) { layout = captured; });
    run();
    ASSERT_TRUE(layout);
    const auto found = std::ranges::find(layout->windows, std::string("src"), &Window::title);
    ASSERT_NE(found, layout->windows.end());
    EXPECT_EQ(found->document, src);
}

TEST_F(LayoutDocumentsTest, AComposedLayoutSavesTheFinderFolderAndTheDocumentOfItsWindows) {
    const std::string src = subfolder("a/src");
    const std::string notes = file("notes.txt");
    open(pidOf(finderBundle), "src", src, {100, 100, 500, 400});
    open(editor_, "notes.txt", notes, {300, 300, 500, 400});
    std::optional<SavedLayout> layout;

    LayoutActions::arrange({{ref("src"), quadrants[0]}, {ref("notes.txt"), quadrants[1]}},
                           Screens::snapshot().front(),
                           [&](std::optional<SavedLayout> arranged) { layout = arranged; });
    run();

    ASSERT_TRUE(layout);
    ASSERT_EQ(layout->windows.size(), 2u);
    EXPECT_EQ(layout->windows[0].document, src);
    EXPECT_EQ(layout->windows[1].document, notes);
}

TEST_F(LayoutDocumentsTest, AClosedDocumentWindowIsOpenedAgainOnItsFileAndPlaced) {
    const std::string notes = file("notes.txt");
    desktop.closeWindow(open(editor_, "notes.txt", notes, {300, 300, 500, 400}));

    const auto outcome =
        restoreFully(layoutOf({saved(editorBundle, "notes.txt", notes, quadrants[1])}));

    ASSERT_EQ(desktop.workspace().documentRequests.size(), 1u);
    EXPECT_EQ(desktop.workspace().documentRequests.front().first, notes);
    ASSERT_TRUE(showing(notes));
    EXPECT_EQ(frameOf(notes), quadrantFrames[1]);
    EXPECT_EQ(outcome.moved.size(), 1u);
}

TEST_F(LayoutDocumentsTest, AClosedFinderFolderIsOpenedAgainInFinder) {
    const std::string src = subfolder("b/src");
    const auto outcome = restoreFully(layoutOf({saved(finderBundle, "src", src, quadrants[2])}));
    ASSERT_EQ(desktop.workspace().documentRequests.size(), 1u);
    EXPECT_EQ(desktop.workspace().documentRequests.front().second,
              "/System/Library/CoreServices/Finder.app");
    EXPECT_EQ(frameOf(src), quadrantFrames[2]);
    EXPECT_EQ(outcome.moved.size(), 1u);
}

TEST_F(LayoutDocumentsTest, AFileThatNoLongerExistsIsSkippedWithOneLineAndCounted) {
    const std::string notes = file("notes.txt");
    std::filesystem::remove(folder.path() / "notes.txt");

    const auto outcome = restoreFully(
        layoutOf({saved(editorBundle, "notes.txt", notes, quadrants[0]), notesOnTheRight()}));

    EXPECT_TRUE(desktop.workspace().documentRequests.empty());
    EXPECT_EQ(outcome.documentsGone, 1);
    EXPECT_EQ(outcome.goneMessage(), "1 document no longer exists");
    EXPECT_EQ(logged("layouts: notes.txt no longer exists, its window is skipped"), 1u);
    EXPECT_EQ(logged("layouts: restored \"Desk\", 1 of 2 windows, 1 document no longer exists"),
              1u);
}

TEST_F(LayoutDocumentsTest, AWindowOnAnotherFileNeverTakesTheClosedWindowsPlace) {
    const std::string first = file("first.txt");
    const std::string second = file("second.txt");
    const std::string third = file("third.txt");
    const Rect elsewhere{300, 300, 500, 400};
    desktop.closeWindow(open(editor_, "first.txt", first, elsewhere));
    open(editor_, "second.txt", second, {100, 100, 500, 400});
    open(editor_, "third.txt", third, elsewhere);

    restoreFully(layoutOf({saved(editorBundle, "first.txt", first, quadrants[0]),
                           saved(editorBundle, "second.txt", second, quadrants[3])}));

    EXPECT_EQ(frameOf(second), quadrantFrames[3]);
    EXPECT_EQ(frameOf(first), quadrantFrames[0]);
    EXPECT_EQ(frameOf(third), elsewhere);
}

TEST_F(LayoutDocumentsTest, WithoutLaunchingNoFileIsOpenedInAnApplicationThatIsNotRunning) {
    const std::string notes = file("notes.txt");
    desktop.workspace().forceTerminate(editor_);
    setLaunchApps(false);

    const auto outcome =
        restoreFully(layoutOf({saved(editorBundle, "notes.txt", notes, quadrants[0])}));

    EXPECT_TRUE(desktop.workspace().documentRequests.empty());
    EXPECT_TRUE(outcome.moved.empty());
}

}  // namespace
}  // namespace vistrel::testing
