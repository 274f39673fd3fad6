#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <sstream>
#include <string>

#include "layouts/layout_url.h"

namespace vistrel {
namespace {

std::string agentInfoPlist() {
    std::ifstream file(std::string(VISTREL_SOURCE_DIR) + "/src/platform/mac/Info.plist.in");
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

// Launch Services hands the agent only the URLs of the schemes its bundle declares under
// CFBundleURLTypes, each type's CFBundleURLSchemes an array of scheme names.
TEST(URLSchemeDeclaration, TheAgentsBundleDeclaresTheSchemeItReads) {
    const std::regex declared(
        R"(<key>CFBundleURLTypes</key>\s*<array>\s*<dict>[\s\S]*?<key>CFBundleURLSchemes</key>\s*<array>\s*<string>([^<]*)</string>)");
    std::smatch match;
    const std::string plist = agentInfoPlist();
    ASSERT_TRUE(std::regex_search(plist, match, declared));
    EXPECT_EQ(match[1].str(), LayoutURL::scheme);
}

// macOS asks the user before Vistrel may have osascript ask Finder for its windows' folders,
// and shows the bundle's NSAppleEventsUsageDescription in that question; an application that
// declares none is refused without being asked.
TEST(AutomationDeclaration, TheAgentsBundleSaysWhyItAsksFinder) {
    const std::regex declared(
        R"(<key>NSAppleEventsUsageDescription</key>\s*<string>([^<]+)</string>)");
    std::smatch match;
    const std::string plist = agentInfoPlist();
    ASSERT_TRUE(std::regex_search(plist, match, declared));
    EXPECT_NE(match[1].str().find("Finder"), std::string::npos);
}

TEST(URLSchemeDeclaration, TheSettingsAppDoesNotClaimTheScheme) {
    std::ifstream file(std::string(VISTREL_SOURCE_DIR) +
                       "/src/platform/mac/settings_app/Info.plist.in");
    std::stringstream text;
    text << file.rdbuf();
    ASSERT_FALSE(text.str().empty());
    EXPECT_EQ(text.str().find("CFBundleURLTypes"), std::string::npos);
}

}  // namespace
}  // namespace vistrel
