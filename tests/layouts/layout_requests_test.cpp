#include "layouts/layout_requests.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "layout_actions_test.h"
#include "layouts/layout_store.h"

namespace vistrel {
namespace {

using Outcome = LayoutRequests::Outcome;
using Window = SavedLayout::Window;

constexpr std::string_view from = "from a test";
constexpr UnitRect leftHalf{0, 0, 0.5, 1};
constexpr UnitRect rightHalf{0.5, 0, 0.5, 1};

class LayoutRequestsTest : public testing::LayoutActionsTest {
  protected:
    SavedLayout notesLeft(std::string name) {
        return layoutOf({{"com.apple.Notes", "Notes", "Notes", leftHalf, std::nullopt}},
                        std::move(name));
    }
    SavedLayout notesRight(std::string name) {
        return layoutOf({{"com.apple.Notes", "Notes", "Notes", rightHalf, std::nullopt}},
                        std::move(name));
    }
    void store(const SavedLayout& layout) { LayoutStore::add(*Shared::store(), layout); }
    std::vector<SavedLayout> stored() { return LayoutStore::load(*Shared::store()); }

    Outcome apply(const std::string& name) {
        return completed(
            [&](LayoutRequests::Done done) { LayoutRequests::apply(name, from, done); });
    }
    Outcome save(const std::string& name) {
        return completed(
            [&](LayoutRequests::Done done) { LayoutRequests::save(name, from, done); });
    }
    Outcome undo() {
        return completed([&](LayoutRequests::Done done) { LayoutRequests::undo(from, done); });
    }
    Outcome completed(const std::function<void(LayoutRequests::Done)>& request) {
        std::optional<Outcome> outcome;
        request([&outcome](Outcome o) { outcome = std::move(o); });
        run();
        advance(1);
        EXPECT_TRUE(outcome.has_value()) << "the request did not complete";
        return outcome.value_or(Outcome{});
    }
    Rect notesFrame() { return window("Notes").frame; }
};

TEST_F(LayoutRequestsTest, ApplyRestoresTheLayoutWithThatExactName) {
    store(notesRight("Desk"));
    store(notesLeft("Writing"));

    EXPECT_EQ(apply("Writing"), (Outcome{true, "restored \"Writing\", 1 of 1 windows"}));
    EXPECT_EQ(notesFrame(), (Rect{0, 25, 720, 805}));
    EXPECT_EQ(logged("layouts: restoring \"Writing\" from a test"), 1u);
}

TEST_F(LayoutRequestsTest, ApplyTakesTheFirstOfTwoLayoutsWithTheSameName) {
    store(notesRight("Desk"));
    store(notesLeft("Desk"));

    EXPECT_TRUE(apply("Desk").ok);
    EXPECT_EQ(notesFrame(), (Rect{720, 25, 720, 805}));
}

TEST_F(LayoutRequestsTest, ApplyMatchesTheNameCaseSensitivelyAndWholly) {
    store(notesLeft("Desk"));
    const Rect before = notesFrame();

    for (const char* name : {"desk", "DESK", "Desk ", "Des", " Desk"}) {
        EXPECT_EQ(apply(name), (Outcome{false, "no layout named \"" + std::string(name) + "\""}));
    }
    EXPECT_EQ(notesFrame(), before);
}

TEST_F(LayoutRequestsTest, AnUnknownNameIsRefusedWithOneLogLineAndNothingMoves) {
    store(notesLeft("Desk"));
    const Rect before = notesFrame();
    const auto lines = log().size();

    EXPECT_EQ(apply("Nope"), (Outcome{false, "no layout named \"Nope\""}));
    EXPECT_EQ(notesFrame(), before);
    ASSERT_EQ(log().size(), lines + 1);
    EXPECT_EQ(log().back(), "layouts: refused a request from a test: no layout named \"Nope\"");
    EXPECT_FALSE(LayoutUndo::shared().available());
}

TEST_F(LayoutRequestsTest, ApplyFailsWhenNoneOfTheLayoutsWindowsIsOpen) {
    store(layoutOf({{"com.example.Gone", "Gone", "Gone", leftHalf, std::nullopt}}, "Away"));
    EXPECT_EQ(apply("Away"), (Outcome{false, "none of the windows of \"Away\" are open"}));
}

TEST_F(LayoutRequestsTest, SaveAppendsTheCurrentWindowsUnderTheName) {
    store(notesLeft("Desk"));

    const Outcome outcome = save("Evening");

    EXPECT_EQ(outcome, (Outcome{true, "saved \"Evening\", 6 windows"}));
    const auto layouts = stored();
    ASSERT_EQ(layouts.size(), 2u);
    EXPECT_EQ(layouts[1].name, "Evening");
    EXPECT_EQ(layouts[1].windows.size(), 6u);
    EXPECT_EQ(logged("layouts: saved the current windows as \"Evening\" (6) from a test"), 1u);
}

TEST_F(LayoutRequestsTest, SaveUnderAnExistingNameReplacesThatLayoutInItsPlace) {
    store(notesLeft("Desk"));
    store(notesLeft("Writing"));
    store(notesLeft("Desk"));
    const auto before = stored();

    EXPECT_EQ(save("Desk"), (Outcome{true, "replaced \"Desk\", 6 windows"}));

    const auto after = stored();
    ASSERT_EQ(after.size(), 3u);
    EXPECT_EQ(after[0].id, before[0].id);
    EXPECT_EQ(after[0].name, "Desk");
    EXPECT_EQ(after[0].windows.size(), 6u);
    EXPECT_EQ(after[1], before[1]);
    EXPECT_EQ(after[2], before[2]);
    EXPECT_EQ(logged("layouts: saved the current windows as \"Desk\" (6) from a test, in place of "
                     "the layout of that name"),
              1u);
}

TEST_F(LayoutRequestsTest, SaveWithNoWindowsIsRefusedAndStoresNothing) {
    for (const SimWindow& w : std::vector<SimWindow>(desktop.windows()))
        desktop.closeWindow(w.id);

    EXPECT_EQ(save("Empty"), (Outcome{false, "no windows to save as \"Empty\""}));
    EXPECT_TRUE(stored().empty());
    EXPECT_EQ(log().back(),
              "layouts: refused a request from a test: no windows to save as \"Empty\"");
}

TEST_F(LayoutRequestsTest, SaveOnAFullDiskSaysTheLayoutWasNotSaved) {
    desktop.setDiskFull(true);
    EXPECT_EQ(save("Desk"), (Outcome{false, "the layout could not be saved"}));
}

TEST_F(LayoutRequestsTest, NamesThatCannotNameALayoutAreRefusedBeforeAnythingIsDone) {
    for (const std::string& name :
         {std::string(), std::string("a\nb"), std::string("\xFF"), std::string("a\0b", 3)}) {
        const auto lines = log().size();
        EXPECT_FALSE(save(name).ok);
        EXPECT_FALSE(apply(name).ok);
        EXPECT_EQ(log().size(), lines + 2);
    }
    EXPECT_TRUE(stored().empty());
}

TEST_F(LayoutRequestsTest, UndoPutsBackWhatTheLastApplyMoved) {
    store(notesLeft("Desk"));
    const Rect before = notesFrame();
    ASSERT_TRUE(apply("Desk").ok);

    EXPECT_EQ(undo(), (Outcome{true, "Put back 1 window"}));
    EXPECT_EQ(notesFrame(), before);
}

TEST_F(LayoutRequestsTest, UndoWithNothingToUndoIsRefusedWithOneLogLine) {
    const auto lines = log().size();
    EXPECT_EQ(undo(), (Outcome{false, "nothing to undo"}));
    ASSERT_EQ(log().size(), lines + 1);
    EXPECT_EQ(log().back(), "layouts: refused a request from a test: nothing to undo");
}

TEST_F(LayoutRequestsTest, WithoutTheAccessibilityGrantEachRequestSaysSoAndDoesNothing) {
    store(notesLeft("Desk"));
    desktop.trusted = false;
    const Outcome refused{false, "Vistrel has no Accessibility permission"};
    EXPECT_EQ(apply("Desk"), refused);
    EXPECT_EQ(save("Evening"), refused);
    EXPECT_EQ(undo(), refused);
    EXPECT_EQ(stored().size(), 1u);
    EXPECT_EQ(log().back(),
              "layouts: refused a request from a test: Vistrel has no Accessibility permission");
}

TEST_F(LayoutRequestsTest, NamesListsTheSavedLayoutsInTheirOrder) {
    store(notesLeft("Desk"));
    store(notesLeft("Writing"));
    store(notesLeft("Desk"));
    EXPECT_EQ(LayoutRequests::names(), (std::vector<std::string>{"Desk", "Writing", "Desk"}));
}

}  // namespace
}  // namespace vistrel
