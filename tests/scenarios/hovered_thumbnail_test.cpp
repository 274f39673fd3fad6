#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "engine_scenario.h"
#include "platform/sim/sim_event_tap_port.h"
#include "support/presented.h"

namespace vistrel::testing {
namespace {

constexpr int thumbnailReadTicks = 4;

class HoveredThumbnailTest : public Presented<EngineScenario> {
  protected:
    // A point of `area` where no thumbnail the engine read is now, looked for from the bottom-right
    // corner, away from the strip and its safe zone at the top-left; none when thumbnails cover it.
    std::optional<Point> uncovered(Rect area) {
        constexpr int steps = 8;
        for (int i = steps - 1; i > 0; --i) {
            for (int j = steps - 1; j > 0; --j) {
                const Point point{area.minX() + area.width * i / steps,
                                  area.minY() + area.height * j / steps};
                const auto& read = engine->thumbs();
                if (std::none_of(read.begin(), read.end(),
                                 [&](const Rect& thumb) { return thumb.contains(point); }))
                    return point;
            }
        }
        return std::nullopt;
    }
};

// Mission Control lays its thumbnails out anew when a window closes. Where the hovered one
// was and no thumbnail is now, the strip goes on the move's own turn, not once the hover
// queue has answered.
TEST_P(HoveredThumbnailTest,
       AMoveWhereTheHoveredThumbnailWasBeforeTheThumbnailsMovedClearsTheStrip) {
    openMissionControl();
    const Rect before = thumbOf("Notes");
    move(inside(before));
    ASSERT_TRUE(engine->target());
    desktop.closeWindow(windowTitled("Start Page"));
    // The engine reads the thumbnails again within a few ticks.
    for (int i = 0; i < thumbnailReadTicks; ++i)
        tick();
    settle();
    ASSERT_TRUE(std::find(engine->thumbs().begin(), engine->thumbs().end(), before) ==
                engine->thumbs().end())
        << "the thumbnails were not read anew";
    const auto empty = uncovered(before);
    ASSERT_TRUE(empty) << "the new layout covers where the thumbnail was";

    desktop.eventTap().deliver(SimInput::mouseMoved(*empty));
    desktop.executor().mainQueue().runOne();
    EXPECT_FALSE(engine->target());
}

INSTANTIATE_ON_EVERY_PRESENTATION(HoveredThumbnailTest);

}  // namespace
}  // namespace vistrel::testing
