#include "layouts/uuid.h"

#include <gtest/gtest.h>

#include <cctype>
#include <set>

namespace vistrel {
namespace {

TEST(UUID, WritesTheCanonicalUpperCaseForm) {
    const auto id = UUID::parse("e621e1f8-c36c-495a-93fc-0c247a3e6e5f");
    ASSERT_TRUE(id);
    EXPECT_EQ(id->string(), "E621E1F8-C36C-495A-93FC-0C247A3E6E5F");
}

TEST(UUID, ReadsEitherCase) {
    EXPECT_EQ(UUID::parse("e621e1f8-c36c-495a-93fc-0c247a3e6e5f"),
              UUID::parse("E621E1F8-C36C-495A-93FC-0C247A3E6E5F"));
    EXPECT_EQ(UUID::parse("E621e1f8-C36C-495a-93FC-0c247A3E6E5F"),
              UUID::parse("E621E1F8-C36C-495A-93FC-0C247A3E6E5F"));
}

TEST(UUID, RejectsTextThatIsNotTheHyphenatedForm) {
    for (const char* text :
         {"", "E621E1F8C36C495A93FC0C247A3E6E5F", "E621E1F8-C36C-495A-93FC-0C247A3E6E5",
          "E621E1F8-C36C-495A-93FC-0C247A3E6E5F0", "G621E1F8-C36C-495A-93FC-0C247A3E6E5F",
          "E621E1F8-C36C-495A-93FC_0C247A3E6E5F", "{E621E1F8-C36C-495A-93FC-0C247A3E6E5}"}) {
        EXPECT_FALSE(UUID::parse(text)) << text;
    }
}

TEST(UUID, RandomIdentifiersAreVersionFourAndDistinct) {
    std::set<std::string> seen;
    for (int i = 0; i < 200; ++i) {
        const std::string text = UUID::random().string();
        EXPECT_EQ(text[14], '4') << text;
        EXPECT_NE(std::string("89AB").find(text[19]), std::string::npos) << text;
        EXPECT_EQ(UUID::parse(text)->string(), text);
        seen.insert(text);
    }
    EXPECT_EQ(seen.size(), 200u);
}

}  // namespace
}  // namespace vistrel
