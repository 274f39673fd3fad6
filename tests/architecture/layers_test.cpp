#include "layers.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace vistrel::testing {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t longestFile = 400;

const fs::path sourceDir = VISTREL_SOURCE_DIR;

Layers documentedLayers() {
    std::ifstream in(sourceDir / "docs/architecture.md");
    std::stringstream text;
    text << in.rdbuf();
    return Layers::fromDrawing(text.str());
}

std::string describe(const std::vector<IncludeViolation>& violations) {
    std::string text;
    for (const auto& v : violations)
        text += v.file + ":" + std::to_string(v.line) + ": " + v.text + "\n";
    return text;
}

const std::string drawing =
    "# Title\n"
    "```text\n"
    "┌───────────┐\n"
    "│ app/      │ the top\n"
    "├───────────┤\n"
    "│ tracking/ │ the middle\n"
    "│ platform/ │ the ground\n"
    "└───────────┘\n"
    "```\n";

TEST(Layers, EveryFileOfSrcIncludesOnlyItsOwnFloorAndTheFloorsBelow) {
    const Layers layers = documentedLayers();
    ASSERT_GT(layers.floors().size(), 3u) << "docs/architecture.md shows no floors";
    const auto violations = scanIncludes(layers, sourceDir / "src");
    EXPECT_TRUE(violations.empty()) << "a folder includes one above it in the order of "
                                       "docs/architecture.md:\n"
                                    << describe(violations);
}

TEST(Layers, EveryFolderOfSrcStandsOnAFloorOfTheDrawing) {
    const auto missing = foldersWithoutFloor(documentedLayers(), sourceDir / "src");
    EXPECT_TRUE(missing.empty()) << "not in the drawing: " << ::testing::PrintToString(missing);
}

TEST(Layers, TheGroundFloorIsThePlatformsInterfaces) {
    EXPECT_EQ(documentedLayers().floors().front(), "platform");
}

TEST(Layers, NoSourceFileIsLongerThanFourHundredLines) {
    const auto found =
        longFiles({sourceDir / "src", sourceDir / "tools", sourceDir / "tests"}, longestFile);
    std::string text;
    for (const LongFile& file : found)
        text += file.file + ": " + std::to_string(file.lines) + " lines\n";
    EXPECT_TRUE(found.empty()) << "split by responsibility:\n" << text;
}

TEST(Layers, ReadsTheFloorsFromTheDrawingBottomFirst) {
    EXPECT_EQ(Layers::fromDrawing(drawing).floors(),
              (std::vector<std::string>{"platform", "tracking", "app"}));
}

TEST(Layers, FlagsAnIncludeOfAHigherFloor) {
    const Layers layers = Layers::fromDrawing(drawing);
    const auto violations =
        includeViolations(layers, "tracking/engine.cpp", "#include \"app/app_delegate.h\"\n");
    ASSERT_EQ(violations.size(), 1u);
    EXPECT_EQ(violations[0].line, 1);
}

TEST(Layers, AllowsTheSameFloorTheFloorsBelowNeighboursAndTheStandardLibrary) {
    const Layers layers = Layers::fromDrawing(drawing);
    EXPECT_TRUE(includeViolations(layers, "app/a.cpp",
                                  "#include <vector>\n#include \"app/b.h\"\n"
                                  "#include \"tracking/ax.h\"\n#include \"platform/geometry.h\"\n"
                                  "#include \"neighbour.h\"\n")
                    .empty());
}

TEST(Layers, FlagsAFolderNoFloorHolds) {
    const Layers layers = Layers::fromDrawing(drawing);
    EXPECT_EQ(includeViolations(layers, "app/a.cpp", "#include \"elsewhere/b.h\"\n").size(), 1u);
    EXPECT_EQ(includeViolations(layers, "elsewhere/a.cpp", "#include \"app/b.h\"\n").size(), 1u);
}

TEST(Layers, FlagsAppleFrameworkHeadersOutsideTheMacFolders) {
    const Layers layers = Layers::fromDrawing(drawing);
    const std::string text =
        "#include <CoreGraphics/CoreGraphics.h>\n#import <AppKit/AppKit.h>\n#include <os/log.h>\n";
    EXPECT_EQ(includeViolations(layers, "tracking/a.cpp", text).size(), 3u);
    EXPECT_TRUE(includeViolations(layers, "platform/mac/agent/main.mm", text).empty());
}

const std::string drawingWithImplementations =
    "│ app/          │ the top\n"
    "│ platform/mac/ │ an implementation\n"
    "│ platform/     │ the ground\n";

TEST(Layers, AnImplementationInsideThePlatformFolderStandsOnItsOwnFloor) {
    const Layers layers = Layers::fromDrawing(drawingWithImplementations);
    ASSERT_EQ(layers.floors(), (std::vector<std::string>{"platform", "platform/mac", "app"}));
    EXPECT_EQ(layers.floorOf("platform/mac/mac_window_host.h"), 1u);
    EXPECT_EQ(layers.floorOf("platform/window_host.h"), 0u);
}

TEST(Layers, TheInterfacesNeverIncludeAnImplementation) {
    const Layers layers = Layers::fromDrawing(drawingWithImplementations);
    EXPECT_EQ(includeViolations(layers, "platform/platform.cpp",
                                "#include \"platform/mac/mac_platform.h\"\n")
                  .size(),
              1u);
    EXPECT_TRUE(includeViolations(layers, "platform/mac/mac_platform.h",
                                  "#include \"platform/window_host.h\"\n")
                    .empty());
}

}  // namespace
}  // namespace vistrel::testing
