#include "layouts/display_match.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

const SavedLayout::Display laptop{"37D8832A-2D66-02CA-B9F7-8F30A301B230", {0, 0, 1512, 982}};
const SavedLayout::Display studio{"9A1C2E6F-4B7D-4E0A-8C3B-2F5D6A7E8B90", {1512, -458, 2560, 1440}};

SavedLayout savedOn(std::string name, double created, std::vector<SavedLayout::Display> on) {
    SavedLayout layout;
    layout.name = std::move(name);
    layout.created = created;
    layout.displays = std::move(on);
    return layout;
}

TEST(DisplayMatchTest, TheMostRecentLayoutForExactlyTheseDisplaysIsChosen) {
    const std::vector<SavedLayout> layouts = {savedOn("Desk, older", 10, {laptop, studio}),
                                              savedOn("Laptop", 30, {laptop}),
                                              savedOn("Desk", 20, {laptop, studio})};
    EXPECT_EQ(DisplayMatch::latestFor(layouts, {laptop, studio}), 2u);
    EXPECT_EQ(DisplayMatch::latestFor(layouts, {laptop}), 1u);
}

TEST(DisplayMatchTest, NoLayoutIsChosenForAnUnknownSetOfDisplays) {
    const SavedLayout::Display projector{"0F0F0F0F-0000-0000-0000-000000000001",
                                         {-1920, 0, 1920, 1080}};
    const std::vector<SavedLayout> layouts = {savedOn("Desk", 20, {laptop, studio})};
    EXPECT_FALSE(DisplayMatch::latestFor(layouts, {laptop, projector}));
    EXPECT_FALSE(DisplayMatch::latestFor(layouts, {studio}));
}

TEST(DisplayMatchTest, TheSameDisplaysArrangedOtherwiseAreAnotherSet) {
    SavedLayout::Display studioOnTheLeft = studio;
    studioOnTheLeft.frame.x = -2560;
    const std::vector<SavedLayout> layouts = {savedOn("Desk", 20, {laptop, studio})};
    EXPECT_FALSE(DisplayMatch::latestFor(layouts, {laptop, studioOnTheLeft}));
    SavedLayout::Display nudged = studio;
    nudged.frame.x += 0.5;
    EXPECT_EQ(DisplayMatch::latestFor(layouts, {laptop, nudged}), 0u) << "within a point";
}

TEST(DisplayMatchTest, ALayoutSavedBeforeDisplaysWereRememberedIsNeverChosen) {
    const std::vector<SavedLayout> layouts = {savedOn("Old", 50, {})};
    EXPECT_FALSE(DisplayMatch::latestFor(layouts, {laptop}));
    EXPECT_FALSE(DisplayMatch::latestFor(layouts, {}));
}

TEST(DisplayMatchTest, TheScreensAreRememberedByIdentifierInOrderAndUnnamedOnesLeftOut) {
    const std::vector<ScreenInfo> screens = {{studio.id, studio.frame, studio.frame},
                                             {"", {0, 0, 800, 600}, {0, 0, 800, 600}},
                                             {laptop.id, laptop.frame, laptop.frame}};
    EXPECT_EQ(DisplayMatch::displaysOf(screens),
              (std::vector<SavedLayout::Display>{laptop, studio}));
}

}  // namespace
}  // namespace vistrel
