// When Vistrel cannot tell which window the pointer is over, every key and click goes on to
// the system untouched, so Command-W, Command-Q and the others keep their usual meaning; only
// a key or click that runs an action on a window Vistrel is sure of is kept. The uncertain
// cases are those public records of real Macs allow: two windows alike in title and shape
// behind thumbnails that name no window, and a macOS whose Mission Control tree is empty.
#include <gtest/gtest.h>

#include <string>

#include "base/hotkey.h"
#include "layouts_scenario.h"
#include "platform/sim/sim_event_tap_port.h"
#include "platform/sim/sim_title_scene.h"
#include "support/presented.h"

namespace vistrel::testing {
namespace {

using Item = ShelfLayout::Item;

class FailOpenTest : public Presented<LayoutsScenario> {
  protected:
    // Every shortcut, pressed with the pointer at rest over the point: each must go on to
    // the system and leave every window as it was.
    void everyShortcutPassesOver(Point point) {
        const std::size_t windows = desktop.windows().size();
        for (Hotkey hotkey : allHotkeys) {
            move({1, 1});
            move(point);
            tick();
            settle();
            ASSERT_FALSE(engine->target()) << "the pointer found a window";
            EXPECT_TRUE(key(keyCode(hotkey), modifiers(hotkey))) << name(hotkey) << " was kept";
            keyUp(keyCode(hotkey));
        }
        EXPECT_EQ(desktop.windows().size(), windows);
        for (const SimWindow& window : desktop.windows()) {
            EXPECT_FALSE(window.closed || window.minimized) << window.title;
        }
    }
};

// Where the hit-test or the thumbnail names the window, alike windows are told apart; these
// are the presentations where they cannot be.
class UncertainWindowTest : public FailOpenTest {};

TEST_P(UncertainWindowTest, EveryShortcutOverAWindowVistrelIsNotSureOfGoesToTheSystem) {
    const SimTitleScene scene = addTitleScene(desktop);
    openMissionControl();
    everyShortcutPassesOver(inside(thumbOfWindow(scene.alikeFirst)));
}

TEST_P(FailOpenTest, EveryShortcutGoesToTheSystemWhenMissionControlsTreeIsEmpty) {
    desktop.dock().treeEmpty = true;
    openMissionControl();
    ASSERT_TRUE(engine->active());
    ASSERT_TRUE(engine->thumbs().empty());
    // Mission Control still shows the window; where, nothing Vistrel reads says.
    everyShortcutPassesOver(inside(frameOf("Notes")));
}

TEST_P(UncertainWindowTest, AClickWhileComposingOnAWindowVistrelIsNotSureOfGoesOnToMissionControl) {
    const SimTitleScene scene = addTitleScene(desktop);
    openMissionControl();
    unfoldShelf();
    clickCell(Item::layoutTemplate(0));
    ASSERT_TRUE(layouts().isComposing());
    const Point at = inside(thumbOfWindow(scene.alikeSecond));
    move(at);
    EXPECT_TRUE(press(at)) << "the click reaches Mission Control";
    EXPECT_TRUE(release(at));
}

TEST_P(FailOpenTest, APressDraggingWhoseReleaseWasLostEndsAtTheNextPlainMove) {
    openMissionControl();
    const Point start = inside(thumbOf("Notes"));
    move(start);
    tick();
    settle();
    ASSERT_TRUE(press(start));
    desktop.eventTap().deliver(SimInput::mouseDragged({start.x + 60, start.y + 40}));
    settle();
    ASSERT_TRUE(layouts().pressDragging());
    // The release came while the tap was off; the next thing seen is a plain move.
    move({start.x + 80, start.y + 40});
    EXPECT_FALSE(layouts().pressDragging());
}

INSTANTIATE_ON_EVERY_PRESENTATION(FailOpenTest);
INSTANTIATE_TEST_SUITE_P(ThumbnailsNamingNoWindow, UncertainWindowTest,
                         ::testing::Values(SimPresentation::hitTestThumbnail,
                                           SimPresentation::unnumberedThumbnails),
                         PresentationName{});

}  // namespace
}  // namespace vistrel::testing
