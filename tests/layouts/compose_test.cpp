#include "session/compose.h"

#include <gtest/gtest.h>

#include "support/sim_test.h"

namespace vistrel {
namespace {

using testing::SimTest;

class ComposeTest : public SimTest {
  protected:
    Compose::Pick pickOf(SimWindowId id, Rect thumb = {}) {
        return {desktop.accessibility().windowElement(id), desktop.window(id)->pid, thumb};
    }

    SimWindowId windowNamed(const std::string& title) {
        SimWindow made;
        made.title = title;
        return desktop.addWindow(desktop.addApplication({}), made);
    }

    const LayoutTemplate& halves() { return LayoutTemplate::all()[0]; }
    const LayoutTemplate& thirds() { return LayoutTemplate::all()[2]; }
};

TEST_F(ComposeTest, StartingMakesOneEmptySlotPerSlotOfTheTemplate) {
    const Compose compose = Compose::start(2, thirds().slots.size(), std::nullopt);
    EXPECT_EQ(compose.templateIndex, 2);
    ASSERT_EQ(compose.picks.size(), 3u);
    EXPECT_TRUE(compose.empty());
    EXPECT_EQ(compose.firstEmpty(), 0u);
}

TEST_F(ComposeTest, SwitchingTemplatesKeepsThePickedWindowsInSlotOrder) {
    Compose halves = Compose::start(0, 2, std::nullopt);
    const SimWindowId first = windowNamed("first");
    const SimWindowId second = windowNamed("second");
    halves.picks[1] = pickOf(second);
    halves.picks[0] = pickOf(first);
    const Compose thirds = Compose::start(2, 3, halves);
    ASSERT_TRUE(thirds.picks[0] && thirds.picks[1]);
    EXPECT_EQ(thirds.picks[0]->window, pickOf(first).window);
    EXPECT_EQ(thirds.picks[1]->window, pickOf(second).window);
    EXPECT_FALSE(thirds.picks[2]);
}

TEST_F(ComposeTest, SwitchingToASmallerTemplateDropsThePicksThatDoNotFit) {
    Compose grid = Compose::start(4, 4, std::nullopt);
    for (const char* title : {"a", "b", "c"})
        grid.toggle(pickOf(windowNamed(title)));
    const Compose halves = Compose::start(0, 2, grid);
    EXPECT_TRUE(halves.full());
    EXPECT_EQ(halves.picks[1]->window, grid.picks[1]->window);
}

TEST_F(ComposeTest, SwitchingSkipsEmptySlotsOfThePreviousCompose) {
    Compose thirds = Compose::start(2, 3, std::nullopt);
    const SimWindowId window = windowNamed("late");
    thirds.picks[2] = pickOf(window);
    const Compose halves = Compose::start(0, 2, thirds);
    ASSERT_TRUE(halves.picks[0]);
    EXPECT_EQ(halves.picks[0]->window, pickOf(window).window);
    EXPECT_FALSE(halves.picks[1]);
}

TEST_F(ComposeTest, APickGoesIntoTheFirstEmptySlot) {
    Compose compose = Compose::start(2, 3, std::nullopt);
    const SimWindowId a = windowNamed("a");
    const SimWindowId b = windowNamed("b");
    compose.picks[0] = pickOf(a);
    compose.toggle(pickOf(b));
    ASSERT_TRUE(compose.picks[1]);
    EXPECT_EQ(compose.picks[1]->window, pickOf(b).window);
    EXPECT_EQ(compose.firstEmpty(), 2u);
}

TEST_F(ComposeTest, PickingTheSameWindowTwiceEmptiesItsSlotAgain) {
    Compose compose = Compose::start(0, 2, std::nullopt);
    const SimWindowId window = windowNamed("twice");
    compose.toggle(pickOf(window, {1, 2, 3, 4}));
    compose.toggle(pickOf(window, {9, 9, 9, 9}));
    EXPECT_TRUE(compose.empty());
}

TEST_F(ComposeTest, APickIntoAFullComposeChangesNothing) {
    Compose compose = Compose::start(0, 2, std::nullopt);
    const SimWindowId a = windowNamed("a");
    const SimWindowId b = windowNamed("b");
    compose.toggle(pickOf(a));
    compose.toggle(pickOf(b));
    compose.toggle(pickOf(windowNamed("c")));
    EXPECT_TRUE(compose.full());
    EXPECT_EQ(compose.picks[0]->window, pickOf(a).window);
    EXPECT_EQ(compose.picks[1]->window, pickOf(b).window);
}

TEST_F(ComposeTest, TheCaptionWithASlotFilledOffersToFinish) {
    Compose compose = Compose::start(0, 2, std::nullopt);
    compose.toggle(pickOf(windowNamed("a")));
    EXPECT_EQ(compose.caption(halves()),
              "Halves: click the window for slot 2 of 2, or click Halves again to finish. Esc "
              "cancels.");
}

TEST_F(ComposeTest, TheCaptionWithNothingPickedAsksForTheFirstSlot) {
    const Compose compose = Compose::start(2, 3, std::nullopt);
    EXPECT_EQ(compose.caption(thirds()), "Thirds: click the window for slot 1 of 3. Esc cancels.");
}

TEST_F(ComposeTest, TheCaptionNamesTheFirstEmptySlotEvenBeforeAFilledOne) {
    Compose compose = Compose::start(2, 3, std::nullopt);
    compose.picks[1] = pickOf(windowNamed("middle"));
    EXPECT_EQ(compose.caption(thirds()),
              "Thirds: click the window for slot 1 of 3, or click Thirds again to finish. Esc "
              "cancels.");
}

}  // namespace
}  // namespace vistrel
