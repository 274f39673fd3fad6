#include "tracking/thumbnail_match.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

namespace vistrel {
namespace {

using ThumbnailMatch::Fit;
using ThumbnailMatch::Thumbnail;
using ThumbnailMatch::Window;

constexpr int rounds = 500;
constexpr double smallestScale = 0.15;
constexpr double largestScale = 0.8;

// Random desktops (windows of at least 400×300 points, so that a thumbnail at the smallest
// scale is 60×45 points and rounds by under 2%): windows of a few applications, titled "Window
// 1042" (no title begins with another), of any plausible size, anywhere on a 3000-point-wide plane.
class Desktops {
  public:
    explicit Desktops(unsigned seed) : random_(seed) {}

    std::vector<Window> windows() {
        std::vector<Window> made;
        const int count = between(1, 60);
        for (int i = 0; i < count; ++i) {
            std::string number = std::to_string(1000 + i);
            made.push_back({"Window " + number,
                            "com.example.app" + std::to_string(between(0, 4)),
                            {real(0, 2500), real(0, 1400), real(400, 2000), real(300, 1200)}});
        }
        return made;
    }
    // Mission Control's picture of a window: scaled uniformly, rounded to whole points.
    Rect thumbnailOf(const Window& window) {
        const double scale = real(smallestScale, largestScale);
        return {std::round(real(0, 1400)), std::round(real(0, 800)),
                std::round(window.frame.width * scale), std::round(window.frame.height * scale)};
    }
    int between(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }
    double real(double low, double high) {
        return std::uniform_real_distribution(low, high)(random_);
    }

  private:
    std::mt19937 random_;
};

TEST(ThumbnailMatchProperty, AUniqueFitIsFound) {
    Desktops desktops(21);
    for (int round = 0; round < rounds; ++round) {
        const auto windows = desktops.windows();
        const auto shown = static_cast<std::size_t>(desktops.between(0, int(windows.size()) - 1));
        const Thumbnail thumbnail{windows[shown].title, std::nullopt,
                                  desktops.thumbnailOf(windows[shown]), std::nullopt};
        EXPECT_EQ(ThumbnailMatch::fit(thumbnail, windows), (Fit{shown, false})) << round;
    }
}

TEST(ThumbnailMatchProperty, AThumbnailTwoWindowsFitEquallyIsRefused) {
    Desktops desktops(22);
    for (int round = 0; round < rounds; ++round) {
        auto windows = desktops.windows();
        const auto shown = static_cast<std::size_t>(desktops.between(0, int(windows.size()) - 1));
        Window twin = windows[shown];
        twin.frame.x += desktops.real(-300, 300);
        windows.push_back(twin);
        const Thumbnail thumbnail{windows[shown].title, twin.bundleIdentifier,
                                  desktops.thumbnailOf(windows[shown]), std::nullopt};
        EXPECT_EQ(ThumbnailMatch::fit(thumbnail, windows), (Fit{std::nullopt, true})) << round;
    }
}

TEST(ThumbnailMatchProperty, AThumbnailWhoseTitleNoWindowBeginsWithFitsNone) {
    Desktops desktops(23);
    for (int round = 0; round < rounds; ++round) {
        const auto windows = desktops.windows();
        const Window& shown = windows.front();
        const Thumbnail thumbnail{"Renamed " + shown.title, std::nullopt,
                                  desktops.thumbnailOf(shown), std::nullopt};
        EXPECT_EQ(ThumbnailMatch::fit(thumbnail, windows), Fit{}) << round;
    }
}

// The window's title as it may read at the hover after the read that tied it: another
// document, an edit mark, a shortened or emptied title, another window's title.
std::string changedTitle(Desktops& desktops, const std::string& title,
                         const std::vector<Window>& windows) {
    switch (desktops.between(0, 5)) {
        case 0:
            return title + " — Edited";
        case 1:
            return "• " + title;
        case 2:
            return title.substr(0, title.size() - 1);
        case 3:
            return "";
        case 4:
            return "Untitled " + std::to_string(desktops.between(1, 9));
        default:
            for (const Window& other : windows) {
                if (other.title != title) return other.title;
            }
            return title + " 2";
    }
}

TEST(ThumbnailMatchProperty, ATitleChangedBetweenTheReadAndTheHoverDropsTheTarget) {
    Desktops desktops(24);
    for (int round = 0; round < rounds; ++round) {
        auto windows = desktops.windows();
        const auto shown = static_cast<std::size_t>(desktops.between(0, int(windows.size()) - 1));
        const Thumbnail thumbnail{windows[shown].title, std::nullopt,
                                  desktops.thumbnailOf(windows[shown]), std::nullopt};
        const Fit tied = ThumbnailMatch::fit(thumbnail, windows);
        ASSERT_EQ(tied, (Fit{shown, false})) << round;
        const std::string titleWhenTied = windows[shown].title;
        EXPECT_TRUE(ThumbnailMatch::stillShows(titleWhenTied, windows[shown].title)) << round;

        windows[shown].title = changedTitle(desktops, titleWhenTied, windows);
        EXPECT_FALSE(ThumbnailMatch::stillShows(titleWhenTied, windows[shown].title))
            << round << ": \"" << windows[shown].title << '"';
        EXPECT_FALSE(ThumbnailMatch::stillShows(titleWhenTied, std::nullopt)) << round;
    }
}

TEST(ThumbnailMatch, AnEqualTitleWinsOverOneThatBeginsWithIt) {
    const std::vector<Window> windows{{"Notes 2", "a", {0, 0, 800, 600}},
                                      {"Notes", "a", {0, 0, 800, 600}}};
    EXPECT_EQ(ThumbnailMatch::fit({"Notes", std::nullopt, {0, 0, 80, 60}, std::nullopt}, windows),
              (Fit{1, false}));
}

TEST(ThumbnailMatch, ATitleFoundInsideAnotherWindowsTitleDoesNotFit) {
    const std::vector<Window> windows{{"My Notes", "a", {0, 0, 800, 600}}};
    EXPECT_EQ(ThumbnailMatch::fit({"Notes", std::nullopt, {0, 0, 80, 60}, std::nullopt}, windows),
              Fit{});
}

TEST(ThumbnailMatch, TwoWindowsBeginningWithTheTitleAreRefused) {
    const std::vector<Window> windows{{"Doc - Google Chrome - Work", "c", {0, 0, 800, 600}},
                                      {"Doc - Google Chrome - Home", "c", {0, 0, 800, 600}}};
    EXPECT_EQ(ThumbnailMatch::fit({"Doc", std::nullopt, {0, 0, 80, 60}, std::nullopt}, windows),
              (Fit{std::nullopt, true}));
}

// Thumbnails are whole points: one of 60 points is off by under 2% from its window.
TEST(ThumbnailMatch, ShapesWithinFivePercentAreOneShapeAndBeyondAreNot) {
    EXPECT_TRUE(ThumbnailMatch::sameShape({0, 0, 104, 100}, {0, 0, 1000, 1000}));
    EXPECT_TRUE(ThumbnailMatch::sameShape({0, 0, 96, 100}, {0, 0, 1000, 1000}));
    EXPECT_FALSE(ThumbnailMatch::sameShape({0, 0, 106, 100}, {0, 0, 1000, 1000}));
    EXPECT_FALSE(ThumbnailMatch::sameShape({0, 0, 94, 100}, {0, 0, 1000, 1000}));
    EXPECT_FALSE(ThumbnailMatch::sameShape({0, 0, 100, 0}, {0, 0, 1000, 1000}));
    EXPECT_FALSE(ThumbnailMatch::sameShape({0, 0, 100, 100}, {0, 0, 0, 1000}));
}

TEST(ThumbnailMatch, OnlyWindowsOnTheThumbnailsDisplayCount) {
    const std::vector<Window> windows{{"Notes", "a", {2000, 0, 800, 600}},
                                      {"Notes", "a", {0, 0, 800, 600}}};
    const Rect leftDisplay{0, 0, 1440, 900};
    EXPECT_EQ(ThumbnailMatch::fit({"Notes", std::nullopt, {0, 0, 80, 60}, leftDisplay}, windows),
              (Fit{1, false}));
}

TEST(ThumbnailMatch, TheApplicationTheIdentifierNamesNarrowsTheWindows) {
    const std::vector<Window> windows{{"Untitled", "com.apple.TextEdit", {0, 0, 800, 600}},
                                      {"Untitled", "com.apple.Pages", {0, 0, 800, 600}}};
    EXPECT_EQ(
        ThumbnailMatch::fit({"Untitled", "com.apple.Pages", {0, 0, 80, 60}, std::nullopt}, windows),
        (Fit{1, false}));
}

TEST(ThumbnailMatch, AnUntitledThumbnailFitsOnlyTheOneWindowOfItsApplicationAndShape) {
    const std::vector<Window> windows{{"Document1", "com.microsoft.Word", {0, 0, 800, 700}},
                                      {"Notes", "com.apple.Notes", {0, 0, 800, 700}}};
    EXPECT_EQ(
        ThumbnailMatch::fit({"", "com.microsoft.Word", {0, 0, 80, 70}, std::nullopt}, windows),
        (Fit{0, false}));
    EXPECT_EQ(
        ThumbnailMatch::fit({std::nullopt, std::nullopt, {0, 0, 80, 70}, std::nullopt}, windows),
        Fit{});
}

TEST(ThumbnailMatch, TheIdentifierNamesTheApplicationBeforeTheDesktopNumber) {
    EXPECT_EQ(ThumbnailMatch::bundleOfIdentifier("com.google.Chrome.space.3"), "com.google.Chrome");
    EXPECT_EQ(ThumbnailMatch::bundleOfIdentifier("a.space.b.space.12"), "a.space.b");
    EXPECT_EQ(ThumbnailMatch::bundleOfIdentifier("mc.spaces"), std::nullopt);
    EXPECT_EQ(ThumbnailMatch::bundleOfIdentifier("com.apple.Notes.space."), std::nullopt);
    EXPECT_EQ(ThumbnailMatch::bundleOfIdentifier(".space.1"), std::nullopt);
    EXPECT_EQ(ThumbnailMatch::bundleOfIdentifier("com.apple.Notes.space.1a"), std::nullopt);
}

}  // namespace
}  // namespace vistrel
