#include "settings_app/launch_options.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

using Start = LaunchOptions::Start;
constexpr const char* program = "/Applications/Vistrel.app/Contents/Helpers/Vistrel Settings";

TEST(LaunchOptionsTest, NoArgumentsOpenTheSettings) {
    EXPECT_EQ(LaunchOptions::fromArguments({program}), (LaunchOptions{Start::settings, false}));
    EXPECT_EQ(LaunchOptions::fromArguments({}), (LaunchOptions{Start::settings, false}));
}

TEST(LaunchOptionsTest, OnboardingOpensTheWelcomeGuide) {
    EXPECT_EQ(LaunchOptions::fromArguments({program, "--onboarding"}),
              (LaunchOptions{Start::welcome, false}));
}

TEST(LaunchOptionsTest, OnboardingWithReplayShowsTheGuideAgain) {
    EXPECT_EQ(LaunchOptions::fromArguments({program, "--onboarding", "--replay"}),
              (LaunchOptions{Start::welcome, true}));
}

TEST(LaunchOptionsTest, AboutOpensTheAboutPage) {
    EXPECT_EQ(LaunchOptions::fromArguments({program, "--about"}),
              (LaunchOptions{Start::about, false}));
}

TEST(LaunchOptionsTest, TheWelcomeGuideWinsOverAbout) {
    EXPECT_EQ(LaunchOptions::fromArguments({program, "--about", "--onboarding"}).start,
              Start::welcome);
}

TEST(LaunchOptionsTest, UnknownArgumentsAndTheProgramPathAreIgnored) {
    EXPECT_EQ(LaunchOptions::fromArguments({"--about", "-NSDocumentRevisionsDebugMode", "YES"}),
              (LaunchOptions{Start::settings, false}));
    EXPECT_EQ(LaunchOptions::fromArguments({program, "--replay"}),
              (LaunchOptions{Start::settings, false}));
}

}  // namespace
}  // namespace vistrel
