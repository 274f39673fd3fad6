// A saved window remembers the file it shows, in its JSON, and files written before it did
// still load.
#include <gtest/gtest.h>

#include "layouts/saved_layout_json.h"

namespace vistrel {
namespace {

constexpr double now = 800'000'000;

SavedLayout withADocument() {
    SavedLayout::Window window{"com.apple.TextEdit", "TextEdit",   "Notes.txt",
                               {0, 0, 0.5, 1},       std::nullopt, "file:///Users/ada/Notes.txt"};
    return {*UUID::parse("E621E1F8-C36C-495A-93FC-0C247A3E6E5F"), "Writing", {window}, 1};
}

TEST(SavedLayoutDocuments, TheDocumentIsWrittenAndReadBack) {
    const auto text = SavedLayoutJSON::encode({withADocument()});
    ASSERT_TRUE(text);
    EXPECT_NE(text->find(R"("document":"file:///Users/ada/Notes.txt")"), std::string::npos)
        << *text;
    const auto read = SavedLayoutJSON::decode(*text, now);
    ASSERT_TRUE(read);
    ASSERT_EQ(read->size(), 1u);
    EXPECT_EQ(read->front(), withADocument());
}

TEST(SavedLayoutDocuments, AWindowSavedBeforeLayoutsKnewDocumentsLoadsWithNone) {
    const auto read = SavedLayoutJSON::decode(
        R"([{"created":1,"name":"Old","windows":[{"app":"TextEdit","bundleID":"com.apple.TextEdit",)"
        R"("rect":{"x":0,"y":0,"w":1,"h":1},"title":"Notes.txt"}]}])",
        now);
    ASSERT_TRUE(read);
    ASSERT_EQ(read->front().windows.size(), 1u);
    EXPECT_EQ(read->front().windows.front().document, std::nullopt);
}

TEST(SavedLayoutDocuments, AWindowWithoutADocumentIsWrittenWithoutTheKey) {
    SavedLayout layout = withADocument();
    layout.windows.front().document.reset();
    const auto text = SavedLayoutJSON::encode({layout});
    ASSERT_TRUE(text);
    EXPECT_EQ(text->find("document"), std::string::npos);
}

TEST(SavedLayoutDocuments, ADocumentThatIsNotTextMakesTheTextUnreadable) {
    EXPECT_FALSE(SavedLayoutJSON::decode(
        R"([{"created":1,"name":"X","windows":[{"app":"A","bundleID":"a","document":7,)"
        R"("rect":{"x":0,"y":0,"w":1,"h":1},"title":"T"}]}])",
        now));
}

}  // namespace
}  // namespace vistrel
