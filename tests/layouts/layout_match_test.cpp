#include "layouts/layout_match.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

using Pairing = std::vector<std::optional<std::size_t>>;

SavedLayout::Window saved(std::string bundleID, std::string title) {
    return {std::move(bundleID), "App", std::move(title), {0, 0, 1, 1}, std::nullopt};
}

SavedLayout::Window onFile(std::string title, std::string document) {
    SavedLayout::Window window = saved("f", std::move(title));
    window.document = std::move(document);
    return window;
}

TEST(LayoutMatch, TheSameFileIsPreferredOverTheSameTitle) {
    const auto pairing =
        LayoutMatch::pair({onFile("src", "file:///b/src/"), onFile("src", "file:///a/src/")},
                          {{"f", "src", "file:///a/src/"}, {"f", "src", "file:///b/src"}});
    EXPECT_EQ(pairing, (Pairing{1, 0}));
}

TEST(LayoutMatch, AWindowShowingASavedWindowsFileIsNotTakenByAnotherWithItsTitle) {
    const auto pairing = LayoutMatch::pair({saved("f", "Report"), onFile("", "file:///report.txt")},
                                           {{"f", "Report", "file:///report.txt"}});
    EXPECT_EQ(pairing, (Pairing{std::nullopt, 0}));
}

TEST(LayoutMatch, AWindowOnAnotherFileIsNeverGivenToAWindowSavedOnAFile) {
    const auto pairing = LayoutMatch::pair({onFile("first.txt", "file:///first.txt")},
                                           {{"f", "first.txt", "file:///elsewhere/first.txt"}});
    EXPECT_EQ(pairing, (Pairing{std::nullopt}));
}

TEST(LayoutMatch, WhenOpenWindowsSayNothingOfTheirFilesTitlesStillPairThem) {
    const auto pairing = LayoutMatch::pair({onFile("Notes", "file:///notes.txt"), saved("f", "")},
                                           {{"f", "Other"}, {"f", "Notes"}});
    EXPECT_EQ(pairing, (Pairing{1, 0}));
}

TEST(LayoutMatch, ExactTitleIsPreferredOverTheFirstWindowOfTheApplication) {
    const auto pairing =
        LayoutMatch::pair({saved("b", "Doc 1"), saved("b", "")}, {{"b", "Doc 2"}, {"b", "Doc 1"}});
    EXPECT_EQ(pairing, (Pairing{1, 0}));
}

TEST(LayoutMatch, TitledWindowWinsTheOnlyWindowAlthoughListedSecond) {
    const auto pairing = LayoutMatch::pair({saved("b", ""), saved("b", "Doc 1")}, {{"b", "Doc 1"}});
    EXPECT_EQ(pairing, (Pairing{std::nullopt, 0}));
}

TEST(LayoutMatch, WindowsOfAnApplicationWithNoOpenWindowStayUnpaired) {
    const auto pairing = LayoutMatch::pair({saved("a", "One"), saved("c", "")}, {{"b", "One"}});
    EXPECT_EQ(pairing, (Pairing{std::nullopt, std::nullopt}));
}

TEST(LayoutMatch, NoSavedWindowsGiveTheEmptyPairing) {
    EXPECT_TRUE(LayoutMatch::pair({}, {{"b", "Doc"}}).empty());
}

TEST(LayoutMatch, AnOpenWindowIsGivenOnlyOnceAndTheFirstListedWins) {
    const auto pairing = LayoutMatch::pair({saved("b", ""), saved("b", ""), saved("b", "")},
                                           {{"b", "X"}, {"a", "Y"}, {"b", "Z"}});
    EXPECT_EQ(pairing, (Pairing{0, 2, std::nullopt}));
}

TEST(LayoutMatch, TitledWindowWithoutItsTitleFallsBackToTheApplication) {
    const auto pairing = LayoutMatch::pair({saved("b", "Gone")}, {{"b", "Other"}});
    EXPECT_EQ(pairing, (Pairing{0}));
}

TEST(LayoutMatch, ComparisonIsCaseSensitive) {
    const auto pairing = LayoutMatch::pair({saved("com.b", "Doc"), saved("com.a", "")},
                                           {{"com.b", "doc"}, {"com.B", "Doc"}, {"COM.A", ""}});
    EXPECT_EQ(pairing, (Pairing{0, std::nullopt}));
}

}  // namespace
}  // namespace vistrel
