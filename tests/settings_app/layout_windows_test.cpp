#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "layouts/layout_store.h"
#include "layouts/layout_url.h"
#include "platform/display_list.h"
#include "settings_app/layout_list_painter.h"
#include "settings_app/layout_windows_painter.h"
#include "settings_app_test.h"

namespace vistrel {
namespace {

SavedLayout::Window window(std::string app, std::string title,
                           std::optional<std::string> document = {}) {
    return {"com.example." + app, std::move(app), std::move(title), {0, 0, 0.5, 1}, {},
            std::move(document)};
}

class LayoutWindowsTest : public testing::SettingsAppTest {
  protected:
    UUID save(std::string name, std::vector<SavedLayout::Window> windows) {
        const SavedLayout layout{UUID::random(), std::move(name), std::move(windows), 700'000'000};
        LayoutStore::add(*domain, layout);
        return layout.id;
    }

    // Every text the Layouts list paints, in order.
    std::vector<std::string> paintedTexts() {
        const LayoutListPainter painter(*model, Appearance::light);
        RecordingCanvas canvas(true);
        painter.paint(canvas, {0, 0, 580, painter.height()});
        std::vector<std::string> texts;
        for (const auto& text : canvas.finish()->all<DisplayList::Text>())
            texts.push_back(text.run.text);
        return texts;
    }

    bool painted(const std::string& text) {
        const auto texts = paintedTexts();
        return std::ranges::find(texts, text) != texts.end();
    }

    std::unique_ptr<SettingsModel> model = launch();
};

TEST_F(LayoutWindowsTest, SelectingALayoutShowsItsWindowsWithApplicationAndTitle) {
    save("Mail", {window("Mail", "Inbox")});
    const UUID id = save("Writing", {window("Safari", "Start Page"), window("Notes", "")});
    model->selectLayout(id);
    EXPECT_EQ(model->selectedLayout(), id);
    EXPECT_EQ(model->selectedLayoutWindows(),
              (std::vector<LayoutWindowRow>{{"Safari", "Start Page", ""}, {"Notes", "", ""}}));
    EXPECT_TRUE(painted("Windows of “Writing”"));
    EXPECT_TRUE(painted("Safari"));
    EXPECT_TRUE(painted("Start Page"));
    EXPECT_FALSE(painted("Inbox"));
}

TEST_F(LayoutWindowsTest, NoWindowsShowWhileNoLayoutIsChosen) {
    save("Writing", {window("Safari", "Start Page")});
    EXPECT_EQ(model->selectedLayout(), std::nullopt);
    EXPECT_TRUE(model->selectedLayoutWindows().empty());
    EXPECT_FALSE(painted("Start Page"));
    EXPECT_FALSE(painted(std::string(LayoutWindowsPainter::copyTitle)));
}

TEST_F(LayoutWindowsTest, AWindowWithADocumentShowsTheFilesNameWithItsFullPathForHelp) {
    model->selectLayout(
        save("Notes", {window("TextEdit", "Notes.txt — Edited",
                              "file:///Users/ada/Meeting%20Notes/C++%20%C3%A9t%C3%A9.txt")}));
    EXPECT_EQ(model->selectedLayoutWindows(),
              (std::vector<LayoutWindowRow>{
                  {"TextEdit", "C++ été.txt", "/Users/ada/Meeting Notes/C++ été.txt"}}));
    EXPECT_TRUE(painted("C++ été.txt"));
    EXPECT_FALSE(painted("Notes.txt — Edited"));
}

TEST_F(LayoutWindowsTest, AFinderFolderShowsTheFoldersName) {
    model->selectLayout(
        save("Projects", {window("Finder", "Projects", "file:///Users/ada/Projects/"),
                          window("Finder", "Macintosh HD", "file:///")}));
    EXPECT_EQ(model->selectedLayoutWindows(),
              (std::vector<LayoutWindowRow>{{"Finder", "Projects", "/Users/ada/Projects"},
                                            {"Finder", "/", "/"}}));
}

TEST_F(LayoutWindowsTest, ALocalhostFileURLNamesAFileOnThisMac) {
    model->selectLayout(
        save("Draft", {window("Pages", "Draft", "file://localhost/Users/ada/Draft.pages")}));
    EXPECT_EQ(model->selectedLayoutWindows().front().detail, "Draft.pages");
}

TEST_F(LayoutWindowsTest, ADocumentThatIsNoFileOfThisMacShowsTheTitle) {
    model->selectLayout(save("Odd", {window("Safari", "Start Page", "https://example.com/a.txt"),
                                     window("Preview", "Scan", "file://server/Scans/scan.pdf"),
                                     window("TextEdit", "Broken", "file:///bad%2"),
                                     window("TextEdit", "Hostless", "file://")}));
    for (const LayoutWindowRow& row : model->selectedLayoutWindows()) {
        EXPECT_NE(row.detail, "a.txt");
        EXPECT_EQ(row.path, "") << row.detail;
    }
    EXPECT_EQ(model->selectedLayoutWindows()[1].detail, "Scan");
}

TEST_F(LayoutWindowsTest, ALayoutWithoutWindowsSaysSo) {
    model->selectLayout(save("Empty", {}));
    EXPECT_TRUE(model->selectedLayout().has_value());
    EXPECT_TRUE(model->selectedLayoutWindows().empty());
    EXPECT_TRUE(painted(std::string(LayoutWindowsPainter::noWindows)));
}

TEST_F(LayoutWindowsTest, ADeletedLayoutIsNoLongerChosen) {
    const UUID id = save("Writing", {window("Safari", "Start Page")});
    model->selectLayout(id);
    model->deleteLayout(id);
    EXPECT_EQ(model->selectedLayout(), std::nullopt);
    EXPECT_FALSE(painted("Start Page"));
}

TEST_F(LayoutWindowsTest, ChoosingALayoutTellsTheObservers) {
    int told = 0;
    model->observe([&] { ++told; });
    model->selectLayout(save("Writing", {}));
    EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace vistrel
