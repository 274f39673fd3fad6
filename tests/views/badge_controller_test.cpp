#include "views/badge_controller.h"

#include <gtest/gtest.h>

#include "platform/display_list.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

class BadgeControllerTest : public testing::SimTest {
  protected:
    const SimAgentWindow& simWindow(std::size_t index) {
        return *desktop.windowHost().windows().at(index);
    }

    int visibleBadges() {
        int visible = 0;
        for (const SimAgentWindow* window : desktop.windowHost().windows())
            visible += window->isVisible() ? 1 : 0;
        return visible;
    }

    BadgeController badges;
};

TEST_F(BadgeControllerTest, NoWindowIsMadeBeforeTheFirstBadge) {
    badges.hideAll();
    EXPECT_EQ(desktop.windowHost().windowsMade(), 0);
    EXPECT_TRUE(badges.windows().empty());
}

TEST_F(BadgeControllerTest, BadgeIsA34PointSquareCentredOnThePointInScreenCoordinates) {
    badges.show(1, {100, 200});
    // 200 points from the top of a 900-point screen; the badge's bottom edge is at 217.
    EXPECT_EQ(simWindow(0).frame(), (Rect{83, 683, 34, 34}));
    EXPECT_TRUE(simWindow(0).isVisible());
}

TEST_F(BadgeControllerTest, BadgeWindowIsClickThroughImmediateAtLevel1001OnEverySpace) {
    badges.show(1, {100, 200});
    EXPECT_EQ(simWindow(0).level(), 1001);
    EXPECT_EQ(simWindow(0).collectionBehavior(), 0x151u);
    EXPECT_TRUE(simWindow(0).ignoresMouseEvents());
    EXPECT_EQ(simWindow(0).deferral(), WindowDeferral::immediate);
}

TEST_F(BadgeControllerTest, EachShowAddsABadgeWithItsNumber) {
    badges.show(1, {100, 200});
    badges.show(2, {500, 200});
    EXPECT_EQ(badges.shown(), 2u);
    EXPECT_EQ(visibleBadges(), 2);
    EXPECT_EQ(badges.view(0).number(), 1);
    EXPECT_EQ(badges.view(1).number(), 2);
    EXPECT_EQ(simWindow(1).frame().x, 483);
}

TEST_F(BadgeControllerTest, BadgeWindowShowsItsNumber) {
    badges.show(7, {100, 200});
    const auto texts = simWindow(0).content()->all<DisplayList::Text>();
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].run.text, "7");
}

TEST_F(BadgeControllerTest, HideAllOrdersEveryBadgeOut) {
    badges.show(1, {100, 200});
    badges.show(2, {500, 200});
    badges.hideAll();
    EXPECT_EQ(visibleBadges(), 0);
    EXPECT_EQ(badges.shown(), 0u);
}

TEST_F(BadgeControllerTest, WindowsAreReusedFromTheFirstAfterHideAll) {
    for (int number = 1; number <= 3; ++number)
        badges.show(number, {100.0 * number, 200});
    badges.hideAll();
    badges.show(2, {700, 400});
    EXPECT_EQ(desktop.windowHost().windowsMade(), 3);
    EXPECT_EQ(visibleBadges(), 1);
    EXPECT_TRUE(simWindow(0).isVisible());
    EXPECT_EQ(simWindow(0).frame().x, 683);
    EXPECT_EQ(badges.view(0).number(), 2);
}

TEST_F(BadgeControllerTest, MoreBadgesThanBeforeGrowTheWindows) {
    badges.show(1, {100, 200});
    badges.hideAll();
    badges.show(1, {100, 200});
    badges.show(2, {300, 200});
    EXPECT_EQ(desktop.windowHost().windowsMade(), 2);
    EXPECT_EQ(badges.windows().size(), 2u);
    EXPECT_EQ(visibleBadges(), 2);
}

}  // namespace
}  // namespace vistrel
