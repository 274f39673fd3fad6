#include "layouts/saved_layout_json.h"

#include <gtest/gtest.h>

#include <random>

namespace vistrel {
namespace {

constexpr double now = 800'000'000;
const char* const fixedID = "E621E1F8-C36C-495A-93FC-0C247A3E6E5F";

SavedLayout oneWindowLayout(std::optional<std::string> display) {
    return {*UUID::parse(fixedID),
            "Work",
            {{"com.apple.Safari", "Safari", "Start", {0, 0, 0.5, 1}, std::move(display)}},
            700'000'000.25};
}

std::optional<std::vector<SavedLayout>> decode(std::string_view text) {
    return SavedLayoutJSON::decode(text, now);
}

std::string layoutText(std::string_view layoutKeys) {
    return "[{" + std::string(layoutKeys) + "}]";
}

const char* const goodWindow =
    R"({"app":"Mail","bundleID":"com.apple.mail","rect":{"h":1,"w":0.5,"x":0,"y":0},"title":"Inbox"})";

TEST(SavedLayoutJSON, OneWindowLayoutHasExactlyTheseBytes) {
    EXPECT_EQ(
        SavedLayoutJSON::encode({oneWindowLayout("Built-in Retina Display")}),
        R"([{"created":700000000.25,"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","name":"Work",)"
        R"("windows":[{"app":"Safari","bundleID":"com.apple.Safari","display":)"
        R"("Built-in Retina Display","rect":{"h":1.0,"w":0.5,"x":0.0,"y":0.0},"title":"Start"}]}])");
}

TEST(SavedLayoutJSON, KeysAreWrittenInLexicographicOrder) {
    const std::string text = *SavedLayoutJSON::encode({oneWindowLayout("Display")});
    const char* const order[] = {"\"created\"", "\"id\"",       "\"name\"",    "\"windows\"",
                                 "\"app\"",     "\"bundleID\"", "\"display\"", "\"rect\"",
                                 "\"h\"",       "\"w\"",        "\"x\"",       "\"y\"",
                                 "\"title\""};
    std::size_t last = 0;
    for (const char* key : order) {
        const std::size_t at = text.find(key);
        ASSERT_NE(at, std::string::npos) << key;
        EXPECT_GT(at, last) << key;
        last = at;
    }
}

TEST(SavedLayoutJSON, WindowWithoutDisplayIsWrittenWithTheKeyAbsent) {
    const std::string text = *SavedLayoutJSON::encode({oneWindowLayout(std::nullopt)});
    EXPECT_EQ(text.find("display"), std::string::npos);
    EXPECT_EQ(text.find("null"), std::string::npos);
    EXPECT_EQ(decode(text)->at(0).windows.at(0).display, std::nullopt);
}

TEST(SavedLayoutJSON, TextIsUtf8NotEscaped) {
    SavedLayout layout = oneWindowLayout(std::nullopt);
    layout.name = "Écran \u00B7 \u6587\u5B57 \U0001F600";
    const std::string text = *SavedLayoutJSON::encode({layout});
    EXPECT_NE(text.find(layout.name), std::string::npos);
    EXPECT_EQ(text.find("\\u"), std::string::npos);
}

TEST(SavedLayoutJSON, CreatedIsSecondsSinceTwoThousandOne) {
    EXPECT_EQ(SavedLayout::dateSinceReference(978'307'200), 0);
    EXPECT_EQ(SavedLayout::dateSinceReference(978'307'200 + 86'400), 86'400);
    const auto read = decode(layoutText(R"("created":86400,"windows":[])"));
    EXPECT_EQ(read->at(0).created, 86'400);
}

TEST(SavedLayoutJSON, IdIsReadInEitherCase) {
    const auto read =
        decode(layoutText(R"("id":"e621e1f8-c36c-495a-93fc-0c247a3e6e5f","windows":[])"));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->at(0).id.string(), fixedID);
}

TEST(SavedLayoutJSON, MissingIdGetsAFreshIdentifierOnEveryRead) {
    const std::string text = layoutText(R"("windows":[])");
    const auto first = decode(text);
    const auto second = decode(text);
    ASSERT_TRUE(first && second);
    EXPECT_NE(first->at(0).id, second->at(0).id);
}

TEST(SavedLayoutJSON, MissingNameReadsLayoutAndMissingCreatedReadsNow) {
    const auto read = decode(layoutText(R"("windows":[])"));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->at(0).name, "Layout");
    EXPECT_EQ(read->at(0).created, now);
}

TEST(SavedLayoutJSON, NullCountsAsMissingForTheLenientKeys) {
    const std::string window =
        R"({"app":"Mail","bundleID":"b","display":null,"rect":{"h":1,"w":1,"x":0,"y":0},"title":""})";
    const auto read =
        decode(layoutText(R"("created":null,"id":null,"name":null,"windows":[)" + window + "]"));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->at(0).name, "Layout");
    EXPECT_EQ(read->at(0).created, now);
    EXPECT_EQ(read->at(0).windows.at(0).display, std::nullopt);
}

TEST(SavedLayoutJSON, LayoutWithoutWindowsIsUnreadable) {
    EXPECT_FALSE(decode(layoutText(R"("name":"Work")")));
    EXPECT_FALSE(decode(layoutText(R"("name":"Work","windows":null)")));
}

TEST(SavedLayoutJSON, WindowMissingAnyRequiredKeyIsUnreadable) {
    for (const char* key : {"\"app\"", "\"bundleID\"", "\"rect\"", "\"title\""}) {
        std::string window = goodWindow;
        window.replace(window.find(key), std::string(key).size(), "\"unknown\"");
        EXPECT_FALSE(decode(layoutText(R"("windows":[)" + window + "]"))) << key;
    }
}

TEST(SavedLayoutJSON, RectMissingAnyFieldIsUnreadable) {
    for (const char* key : {"\"h\"", "\"w\"", "\"x\"", "\"y\""}) {
        std::string window = goodWindow;
        window.replace(window.find(key), std::string(key).size(), "\"z\"");
        EXPECT_FALSE(decode(layoutText(R"("windows":[)" + window + "]"))) << key;
    }
}

TEST(SavedLayoutJSON, ValuesOfTheWrongTypeAreUnreadable) {
    const std::string windows = std::string(R"("windows":[)") + goodWindow + "]";
    for (const std::string& wrong :
         {std::string(R"("id":"not-a-uuid",)"), std::string(R"("id":42,)"),
          std::string(R"("name":7,)"), std::string(R"("created":"today",)"),
          std::string(R"("created":true,)")}) {
        EXPECT_FALSE(decode(layoutText(wrong + windows))) << wrong;
    }
    EXPECT_FALSE(decode(layoutText(R"("windows":{})")));
    EXPECT_FALSE(decode(layoutText(R"("windows":[{"app":"A","bundleID":"b","title":"",)"
                                   R"("rect":{"h":"1","w":1,"x":0,"y":0}}])")));
    EXPECT_FALSE(decode(layoutText(R"("windows":[{"app":"A","bundleID":"b","title":"",)"
                                   R"("display":3,"rect":{"h":1,"w":1,"x":0,"y":0}}])")));
}

TEST(SavedLayoutJSON, UnknownKeysAreIgnored) {
    const auto read =
        decode(R"([{"colour":"red","windows":[{"app":"A","bundleID":"b","extra":[1,2],"title":"T",)"
               R"("rect":{"depth":3,"h":0.5,"w":0.25,"x":0.125,"y":0}}]}])");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->at(0).windows.at(0).rect, (UnitRect{0.125, 0, 0.25, 0.5}));
}

TEST(SavedLayoutJSON, KeysAreMatchedByExactString) {
    EXPECT_FALSE(decode(layoutText(R"("Windows":[])")));
}

TEST(SavedLayoutJSON, TextThatIsNotAListOfLayoutsIsUnreadable) {
    for (const char* text : {"", "{}", "\"layouts\"", "null", "[1]", "[[]]", R"([{"windows":[]})",
                             R"([{"windows":[]}] trailing)"}) {
        EXPECT_FALSE(decode(text)) << text;
    }
    EXPECT_EQ(decode("[]"), std::vector<SavedLayout>{});
}

TEST(SavedLayoutJSON, OneBadLayoutMakesTheWholeListUnreadable) {
    const std::string good = std::string(R"({"windows":[)") + goodWindow + "]}";
    EXPECT_TRUE(decode("[" + good + "," + good + "]"));
    EXPECT_FALSE(decode("[" + good + R"(,{"name":"no windows"},)" + good + "]"));
}

TEST(SavedLayoutJSON, NumbersTooLargeForADoubleAreUnreadable) {
    EXPECT_FALSE(decode(layoutText(R"("created":1e400,"windows":[])")));
}

TEST(SavedLayoutJSON, ListsWithNonFiniteNumbersAreNotEncoded) {
    SavedLayout layout = oneWindowLayout(std::nullopt);
    layout.windows[0].rect.w = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(SavedLayoutJSON::encode({layout}), std::nullopt);
    layout = oneWindowLayout(std::nullopt);
    layout.created = std::numeric_limits<double>::infinity();
    EXPECT_EQ(SavedLayoutJSON::encode({layout}), std::nullopt);
}

TEST(SavedLayoutJSON, ListsWithInvalidUtf8AreNotEncoded) {
    SavedLayout layout = oneWindowLayout(std::nullopt);
    layout.windows[0].title = "broken \xC3";
    EXPECT_EQ(SavedLayoutJSON::encode({layout}), std::nullopt);
}

// Random layouts ---------------------------------------------------------------------------

class RandomLayouts {
  public:
    explicit RandomLayouts(std::uint64_t seed) : random_(seed) {}

    SavedLayout layout() {
        SavedLayout layout{UUID::random(), text(), {}, number(-1e9, 1e9)};
        const int count = std::uniform_int_distribution<int>(0, 12)(random_);
        for (int i = 0; i < count; ++i)
            layout.windows.push_back(window());
        return layout;
    }

  private:
    SavedLayout::Window window() {
        std::optional<std::string> display;
        if (coin()) display = text();
        return {text(),
                text(),
                text(),
                {number(-2, 2), number(-2, 2), number(0, 2), number(0, 2)},
                display};
    }

    // Names built from pieces that stress the encoder: quotes, backslashes, control
    // characters, a NUL, emoji and text of other scripts.
    std::string text() {
        static constexpr std::string_view pieces[] = {"Safari",
                                                      "\"",
                                                      "\\",
                                                      "\\\"",
                                                      "/",
                                                      "\n\t",
                                                      std::string_view("\0", 1),
                                                      "\x1F",
                                                      "\u00E9t\u00E9",
                                                      "\u6587\u66F8",
                                                      "\u0645\u0644\u0641",
                                                      "\U0001F600",
                                                      "\U0001F469\u200D\U0001F4BB",
                                                      "\u00B7",
                                                      " ",
                                                      "{}[],:"};
        const int count = std::uniform_int_distribution<int>(0, 6)(random_);
        std::string result;
        for (int i = 0; i < count; ++i) {
            result += pieces[std::uniform_int_distribution<std::size_t>(
                0, std::size(pieces) - 1)(random_)];
        }
        return result;
    }

    double number(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    bool coin() { return std::bernoulli_distribution(0.5)(random_); }

    std::mt19937_64 random_;
};

TEST(SavedLayoutJSON, RandomLayoutsSurviveEncodeAndDecodeUnchanged) {
    RandomLayouts random(2024);
    for (int round = 0; round < 200; ++round) {
        std::vector<SavedLayout> layouts;
        const int count = round % 5;
        for (int i = 0; i < count; ++i)
            layouts.push_back(random.layout());
        const auto text = SavedLayoutJSON::encode(layouts);
        ASSERT_TRUE(text) << "round " << round;
        EXPECT_EQ(decode(*text), layouts) << *text;
    }
}

}  // namespace
}  // namespace vistrel
