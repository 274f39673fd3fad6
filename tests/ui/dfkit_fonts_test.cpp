#include "ui/kit/dfkit_fonts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/sim_test.h"

namespace vistrel::testing {
namespace {

const std::string resources = "/Applications/Vistrel.app/Contents/Resources/";
const std::string geistMissing = "Duskfell: font GeistMono-Medium.ttf is missing from the bundle";

class DFKitFontsTest : public SimTest {
  protected:
    std::size_t logged(std::string_view message) { return desktop.systemLog().count(message); }

    DFKitFonts fonts;
};

TEST_F(DFKitFontsTest, RegistersBothBundledFontsForTheProcess) {
    fonts.registerOnce();
    EXPECT_EQ(desktop.fonts().registered(),
              (std::vector<std::string>{resources + "GeistMono-Medium.ttf",
                                        resources + "InstrumentSans-SemiBold.ttf"}));
    EXPECT_TRUE(desktop.systemLog().messages().empty());
}

TEST_F(DFKitFontsTest, AMissingFontIsLoggedAndTheOtherIsStillRegistered) {
    desktop.fonts().missingResources.insert("GeistMono-Medium.ttf");
    fonts.registerOnce();
    EXPECT_EQ(logged(geistMissing), 1u);
    EXPECT_EQ(desktop.fonts().registered(),
              std::vector<std::string>{resources + "InstrumentSans-SemiBold.ttf"});
}

TEST_F(DFKitFontsTest, TheMissingFontMessageGoesToTheSystemLogAsAnError) {
    desktop.fonts().missingResources.insert("InstrumentSans-SemiBold.ttf");
    fonts.registerOnce();
    const auto lines = desktop.systemLog().lines();
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].message,
              "Duskfell: font InstrumentSans-SemiBold.ttf is missing from the bundle");
    EXPECT_EQ(lines[0].level, LogLevel::error);
    EXPECT_EQ(lines[0].subsystem, "com.quillmarsh.vistrel");
}

TEST_F(DFKitFontsTest, ASecondCallDoesNothing) {
    desktop.fonts().missingResources.insert("GeistMono-Medium.ttf");
    fonts.registerOnce();
    fonts.registerOnce();
    EXPECT_EQ(logged(geistMissing), 1u);
    EXPECT_EQ(desktop.fonts().lookups(), 2);
    EXPECT_EQ(desktop.fonts().registered().size(), 1u);
}

TEST_F(DFKitFontsTest, AFontTheSystemRefusesIsPassedOverQuietly) {
    desktop.fonts().refusedFonts.insert(resources + "GeistMono-Medium.ttf");
    fonts.registerOnce();
    EXPECT_EQ(desktop.fonts().registered(),
              std::vector<std::string>{resources + "InstrumentSans-SemiBold.ttf"});
    EXPECT_TRUE(desktop.systemLog().messages().empty());
}

TEST_F(DFKitFontsTest, TheProcessWideRegistrationRunsOnlyOnce) {
    DFKitFonts::registerFonts();
    const auto afterFirst = desktop.fonts().lookups();
    DFKitFonts::registerFonts();
    EXPECT_EQ(desktop.fonts().lookups(), afterFirst);
}

}  // namespace
}  // namespace vistrel::testing
