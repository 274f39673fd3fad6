#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "layouts/layout_store.h"
#include "layouts/saved_layout_json.h"
#include "settings/preference_key.h"
#include "settings_app_test.h"
#include "support/temp_dir.h"

namespace vistrel {
namespace {

SavedLayout layoutNamed(std::string name, int windows = 1) {
    SavedLayout layout{UUID::random(), std::move(name), {}, 700'000'000};
    for (int i = 0; i < windows; ++i) {
        layout.windows.push_back(
            {"com.apple.Safari", "Safari", "Start", {0, 0, 0.5, 1}, "Built-in"});
    }
    return layout;
}

class SavedLayoutsTest : public testing::SettingsAppTest {
  protected:
    SavedLayoutsTest() {
        for (const char* name : {"Writing", "Mail", "Review"})
            LayoutStore::add(*domain, layoutNamed(name));
    }

    std::vector<std::string> storedNames() {
        std::vector<std::string> names;
        for (const SavedLayout& layout : LayoutStore::load(*domain))
            names.push_back(layout.name);
        return names;
    }
    std::vector<std::string> listedNames() {
        std::vector<std::string> names;
        for (const LayoutRow& row : model->layouts())
            names.push_back(row.name);
        return names;
    }
    std::string storedText() { return stored(PreferenceKey::layoutsSaved).string().value_or(""); }
    std::string path(const std::string& name) { return (folder.path() / name).string(); }
    void writeFile(const std::string& name, const std::string& text) {
        std::ofstream(folder.path() / name, std::ios::binary) << text;
    }

    testing::TempDir folder;
    std::unique_ptr<SettingsModel> model = launch();
};

TEST_F(SavedLayoutsTest, TheListShowsTheSavedLayoutsWithTheirWindowCounts) {
    LayoutStore::add(*domain, layoutNamed("Code", 3));
    const auto rows = model->layouts();
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[0].name, "Writing");
    EXPECT_EQ(rows[0].detail, "1 window");
    EXPECT_EQ(rows[3].detail, "3 windows");
}

TEST_F(SavedLayoutsTest, RenamePersistsThroughTheStoresFormat) {
    const UUID id = model->layouts()[1].id;
    EXPECT_TRUE(model->renameLayout(id, "  Inbox  "));
    EXPECT_EQ(storedNames(), (std::vector<std::string>{"Writing", "Inbox", "Review"}));
    // The stored text is the format the agent's shelf and menu read, sorted keys and all.
    EXPECT_EQ(storedText(), LayoutStore::encode(LayoutStore::load(*domain)));
    EXPECT_NE(storedText().find("\"name\":\"Inbox\""), std::string::npos);
    EXPECT_EQ(LayoutStore::load(*domain)[1].id, id);
}

TEST_F(SavedLayoutsTest, AnEmptyNameIsRefusedWithAMessage) {
    const std::string before = storedText();
    EXPECT_FALSE(model->renameLayout(model->layouts()[0].id, "   "));
    EXPECT_EQ(storedText(), before);
    EXPECT_EQ(model->layoutsMessage(), "A layout needs a name.");
}

TEST_F(SavedLayoutsTest, ReorderPersistsThroughTheStoresFormat) {
    model->moveLayout(2, 0);
    EXPECT_EQ(storedNames(), (std::vector<std::string>{"Review", "Writing", "Mail"}));
    model->moveLayout(0, 2);
    EXPECT_EQ(storedNames(), (std::vector<std::string>{"Writing", "Mail", "Review"}));
    EXPECT_EQ(storedText(), LayoutStore::encode(LayoutStore::load(*domain)));
}

TEST_F(SavedLayoutsTest, AMoveOutsideTheListChangesNothing) {
    const std::string before = storedText();
    model->moveLayout(1, 3);
    model->moveLayout(7, 0);
    EXPECT_EQ(storedText(), before);
}

TEST_F(SavedLayoutsTest, DeleteRemovesOnlyThatLayout) {
    model->deleteLayout(model->layouts()[0].id);
    EXPECT_EQ(storedNames(), (std::vector<std::string>{"Mail", "Review"}));
    EXPECT_EQ(listedNames(), storedNames());
}

TEST_F(SavedLayoutsTest, ExportWritesARealFileInTheStoresFormat) {
    EXPECT_TRUE(model->exportLayouts(path("Vistrel Layouts.json")));
    const std::string text = testing::readFile(folder.path() / "Vistrel Layouts.json");
    EXPECT_EQ(text, storedText());
    EXPECT_EQ(model->layoutsMessage(), "Exported 3 layouts to “Vistrel Layouts.json”.");
}

TEST_F(SavedLayoutsTest, AnExportThatCannotBeWrittenSaysWhy) {
    EXPECT_FALSE(model->exportLayouts(path("no such folder/Vistrel Layouts.json")));
    EXPECT_NE(model->layoutsMessage().find("Could not export to “Vistrel Layouts.json”"),
              std::string::npos);
}

TEST_F(SavedLayoutsTest, ImportAddsTheFilesLayoutsAfterTheSavedOnes) {
    writeFile("shared.json",
              *SavedLayoutJSON::encode({layoutNamed("Design", 2), layoutNamed("Music")}));
    EXPECT_TRUE(model->importLayouts(path("shared.json")));
    EXPECT_EQ(storedNames(),
              (std::vector<std::string>{"Writing", "Mail", "Review", "Design", "Music"}));
    EXPECT_EQ(model->layoutsMessage(), "Imported 2 layouts.");
    EXPECT_FALSE(model->layoutsMessageIsWarning());
}

TEST_F(SavedLayoutsTest, ImportingAnExportAgainReplacesTheSameLayoutsInPlace) {
    ASSERT_TRUE(model->exportLayouts(path("mine.json")));
    model->renameLayout(model->layouts()[0].id, "Renamed since");
    EXPECT_TRUE(model->importLayouts(path("mine.json")));
    EXPECT_EQ(storedNames(), (std::vector<std::string>{"Writing", "Mail", "Review"}));
}

TEST_F(SavedLayoutsTest, AMalformedImportChangesNothingAndSaysWhy) {
    const std::string before = storedText();
    writeFile("broken.json", "[{\"name\": \"Half\", \"windows\": [");
    EXPECT_FALSE(model->importLayouts(path("broken.json")));
    EXPECT_EQ(storedText(), before);
    EXPECT_EQ(model->layoutsMessage(),
              "Could not import “broken.json”: it is not JSON text. Nothing was changed.");
    EXPECT_EQ(desktop.systemLog().count("settings: layouts import failed: it is not JSON text"),
              1u);
}

TEST_F(SavedLayoutsTest, JSONThatIsNotAListOfLayoutsChangesNothingAndSaysWhy) {
    const std::string before = storedText();
    writeFile("other.json", R"({"theme": "dark"})");
    EXPECT_FALSE(model->importLayouts(path("other.json")));
    EXPECT_EQ(storedText(), before);
    EXPECT_EQ(model->layoutsMessage(),
              "Could not import “other.json”: it does not hold a list of Vistrel layouts. Nothing "
              "was changed.");
}

TEST_F(SavedLayoutsTest, AMissingFileChangesNothingAndSaysSo) {
    const std::string before = storedText();
    EXPECT_FALSE(model->importLayouts(path("gone.json")));
    EXPECT_EQ(storedText(), before);
    EXPECT_EQ(model->layoutsMessage(), "Could not read “gone.json”. Nothing was changed.");
}

TEST_F(SavedLayoutsTest, AnEmptyListImportsNothing) {
    const std::string before = storedText();
    writeFile("empty.json", "[]");
    EXPECT_FALSE(model->importLayouts(path("empty.json")));
    EXPECT_EQ(storedText(), before);
    EXPECT_EQ(model->layoutsMessage(), "“empty.json” holds no layouts.");
}

TEST_F(SavedLayoutsTest, EveryEditTellsTheObservers) {
    int told = 0;
    model->observe([&] { ++told; });
    model->moveLayout(0, 1);
    model->deleteLayout(model->layouts()[0].id);
    EXPECT_EQ(told, 2);
}

}  // namespace
}  // namespace vistrel
