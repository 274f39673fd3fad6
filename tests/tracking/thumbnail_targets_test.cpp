#include "tracking/thumbnail_targets.h"

#include <gtest/gtest.h>

#include "support/sim_test.h"
#include "tracking/thumbnail_match.h"

namespace vistrel {
namespace {

class ThumbnailTargetsTest : public testing::SimTest {
  protected:
    ThumbnailTargetsTest() {
        SimApplication app;
        app.bundleIdentifier = "com.example.editor";
        const Pid pid = desktop.addApplication(app);
        SimWindow square;
        square.title = "Report";
        square.frame = {100, 100, 500, 500};
        window = desktop.addWindow(pid, square);
    }

    static MissionControlThumbnail thumbnail(Rect frame) {
        MissionControlThumbnail made;
        made.frame = frame;
        made.title = "Report";
        made.identifier = "com.example.editor.space.1";
        return made;
    }

    SimWindowId window = 0;
    ThumbnailTargets targets;
};

// Found by fuzzing: two thumbnails of one title each within the tolerance of the other,
// the second not of the window's shape, must not share the first one's window.
TEST_F(ThumbnailTargetsTest, ATieServesAnotherFrameOnlyWhileTheWindowStillHasItsShape) {
    const Rect near{0, 0, 103, 100};
    const Rect far{200, 0, 106, 100};
    ASSERT_TRUE(ThumbnailMatch::sameShape(near, far));
    const MissionControlReading reading = targets.update(
        1, {MissionControlHost::windowManager, {thumbnail(near), thumbnail(far)}}, desktop.ownPid);
    EXPECT_EQ(reading.mapped, 1);
    const auto first = targets.at(near.mid(), 1);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->window, desktop.accessibility().windowElement(window));
    EXPECT_FALSE(targets.at(far.mid(), 1));
}

TEST_F(ThumbnailTargetsTest, AReadOfAnotherOpeningAnswersNothing) {
    const Rect frame{0, 0, 100, 100};
    targets.update(1, {MissionControlHost::dock, {thumbnail(frame)}}, desktop.ownPid);
    EXPECT_TRUE(targets.at(frame.mid(), 1));
    EXPECT_FALSE(targets.at(frame.mid(), 2));
}

// The window was tied at the read; by the hover it shows another document.
TEST_F(ThumbnailTargetsTest, AWindowRetitledBetweenTheReadAndTheHoverIsNoTarget) {
    const Rect frame{0, 0, 100, 100};
    targets.update(1, {MissionControlHost::windowManager, {thumbnail(frame)}}, desktop.ownPid);
    ASSERT_TRUE(targets.at(frame.mid(), 1));
    desktop.window(window)->title = "Report (old draft)";
    EXPECT_FALSE(targets.at(frame.mid(), 1));
    desktop.window(window)->title = "Report";
    EXPECT_TRUE(targets.at(frame.mid(), 1));
}

TEST(ThumbnailMatchShape, TheAnswerDoesNotDependOnTheOrder) {
    const Rect a{0, 0, 140, 100};
    const Rect b{0, 0, 400, 300};
    EXPECT_EQ(ThumbnailMatch::sameShape(a, b), ThumbnailMatch::sameShape(b, a));
}

}  // namespace
}  // namespace vistrel
