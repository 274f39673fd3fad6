#include "include_rules.h"

#include <gtest/gtest.h>

namespace vistrel::testing {
namespace {

std::string describe(const std::vector<IncludeViolation>& violations) {
    std::string text;
    for (const auto& v : violations) {
        text += v.file + ":" + std::to_string(v.line) + ": " + v.text + "\n";
    }
    return text;
}

TEST(IncludeRules, CoreFilesIncludeNoPlatformImplementationAndNoAppleHeader) {
    const auto violations = scanCore(std::filesystem::path(VISTREL_SOURCE_DIR) / "src");
    EXPECT_TRUE(violations.empty()) << "core code must reach the machine only through "
                                       "platform/*.h:\n"
                                    << describe(violations);
}

TEST(IncludeRules, FlagsAnIncludeOfTheSimulatedDesktop) {
    EXPECT_EQ(coreIncludeViolations("a.cpp", "#include \"platform/sim/sim_desktop.h\"\n").size(),
              1u);
}

TEST(IncludeRules, FlagsAnIncludeOfTheMacLayer) {
    EXPECT_EQ(coreIncludeViolations("a.cpp", "  #include \"platform/mac/mac_log.h\"\n").size(), 1u);
}

TEST(IncludeRules, FlagsAppleFrameworkHeadersIncludedOrImported) {
    const auto violations =
        coreIncludeViolations("a.h",
                              "#include <CoreGraphics/CoreGraphics.h>\n#import <AppKit/AppKit.h>\n"
                              "#include <os/log.h>\n");
    ASSERT_EQ(violations.size(), 3u);
    EXPECT_EQ(violations[1].line, 2);
}

TEST(IncludeRules, AllowsTheStandardLibraryAndPlatformInterfaces) {
    EXPECT_TRUE(coreIncludeViolations("a.cpp",
                                      "#include <vector>\n#include <sys/stat.h>\n"
                                      "#include \"platform/accessibility.h\"\n"
                                      "#include \"tracking/hotkey.h\"\n")
                    .empty());
}

}  // namespace
}  // namespace vistrel::testing
