// A saved layout remembers the displays it was saved on, in its JSON, and files written
// before it did still load.
#include <gtest/gtest.h>

#include "layouts/saved_layout_json.h"

namespace vistrel {
namespace {

constexpr double now = 800'000'000;
const char* const fixedID = "E621E1F8-C36C-495A-93FC-0C247A3E6E5F";

SavedLayout onTwoDisplays() {
    return {*UUID::parse(fixedID),
            "Desk",
            {{"com.apple.Safari", "Safari", "Start", {0, 0, 0.5, 1}, "DISPLAY-A"}},
            700'000'000,
            {{"DISPLAY-A", {0, 0, 1512, 982}}, {"DISPLAY-B", {1512, -458, 2560, 1440}}}};
}

TEST(SavedLayoutDisplays, TheDisplaysAreWrittenWithTheirIdentifiersAndFrames) {
    const auto text = SavedLayoutJSON::encode({onTwoDisplays()});
    ASSERT_TRUE(text);
    EXPECT_NE(text->find(R"("displays":[{"frame":{"h":982.0,"w":1512.0,"x":0.0,"y":0.0},)"
                         R"("id":"DISPLAY-A"},)"),
              std::string::npos)
        << *text;
}

TEST(SavedLayoutDisplays, TheDisplaysReadBackAsTheyWere) {
    const auto text = SavedLayoutJSON::encode({onTwoDisplays()});
    ASSERT_TRUE(text);
    const auto read = SavedLayoutJSON::decode(*text, now);
    ASSERT_TRUE(read);
    ASSERT_EQ(read->size(), 1u);
    EXPECT_EQ(read->front(), onTwoDisplays());
}

TEST(SavedLayoutDisplays, AFileWrittenBeforeLayoutsRememberedDisplaysStillLoads) {
    const auto read = SavedLayoutJSON::decode(
        R"([{"created":1,"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","name":"Old","windows":[]}])",
        now);
    ASSERT_TRUE(read);
    ASSERT_EQ(read->size(), 1u);
    EXPECT_TRUE(read->front().displays.empty());
}

TEST(SavedLayoutDisplays, ALayoutWithoutDisplaysIsWrittenWithoutTheKey) {
    SavedLayout layout = onTwoDisplays();
    layout.displays.clear();
    const auto text = SavedLayoutJSON::encode({layout});
    ASSERT_TRUE(text);
    EXPECT_EQ(text->find("displays"), std::string::npos);
}

TEST(SavedLayoutDisplays, DisplaysOfTheWrongShapeMakeTheTextUnreadable) {
    for (const char* displays : {R"("displays":{})", R"("displays":[{"id":"A"}])",
                                 R"("displays":[{"id":1,"frame":{"x":0,"y":0,"w":1,"h":1}}])"}) {
        const std::string text =
            std::string(R"([{"created":1,"name":"X","windows":[],)") + displays + "}]";
        EXPECT_FALSE(SavedLayoutJSON::decode(text, now)) << displays;
    }
}

}  // namespace
}  // namespace vistrel
