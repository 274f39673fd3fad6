#include <gtest/gtest.h>

#include "layouts/saved_layout.h"

namespace vistrel {
namespace {

TEST(SavedLayoutAutoName, JoinsUpToThreeApplicationsWithMiddleDots) {
    EXPECT_EQ(SavedLayout::autoName({"Safari", "Mail", "Notes"}),
              "Safari \u00B7 Mail \u00B7 Notes");
    EXPECT_EQ(SavedLayout::autoName({"Safari"}), "Safari");
}

TEST(SavedLayoutAutoName, SkipsEmptyNamesAndRepeats) {
    EXPECT_EQ(SavedLayout::autoName({"Safari", "", "Safari", "Mail"}), "Safari \u00B7 Mail");
}

TEST(SavedLayoutAutoName, FourOrMoreShowTheFirstTwoAndHowManyMore) {
    EXPECT_EQ(SavedLayout::autoName({"A", "B", "C", "D"}), "A \u00B7 B +2");
    EXPECT_EQ(SavedLayout::autoName({"A", "B", "C", "D", "E"}), "A \u00B7 B +3");
    EXPECT_EQ(SavedLayout::autoName({"A", "A", "B", "C", "", "D"}), "A \u00B7 B +2");
}

TEST(SavedLayoutAutoName, NoNamesGiveLayout) {
    EXPECT_EQ(SavedLayout::autoName({}), "Layout");
    EXPECT_EQ(SavedLayout::autoName({"", ""}), "Layout");
}

TEST(SavedLayoutAutoName, NamesDifferingOnlyInCaseAreDistinct) {
    EXPECT_EQ(SavedLayout::autoName({"notes", "Notes"}), "notes \u00B7 Notes");
}

}  // namespace
}  // namespace vistrel
