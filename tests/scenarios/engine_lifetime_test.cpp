#include <gtest/gtest.h>

#include "engine_scenario.h"

namespace vistrel::testing {
namespace {

// The hit-test job is the engine's, reused for every pointer move; queued work only refers
// to it. An engine freed while a hit-test is under way must leave that work something
// valid to run on (AddressSanitizer builds catch the contrary).
class EngineLifetimeTest : public EngineScenario {
  protected:
    SimQueue& hoverQueue() {
        return *desktop.executor().queue(std::string(Engine::hoverQueueLabel));
    }
};

TEST_F(EngineLifetimeTest, EngineFreedWhileAHitTestWaitsOnTheHoverQueueIsLeftAlone) {
    openMissionControl();
    desktop.eventTap().deliver(SimInput::mouseMoved(inside(thumbOf("Notes"))));
    desktop.executor().mainQueue().runOne();
    ASSERT_EQ(hoverQueue().pending(), 1u);
    const auto hitTestsBefore = desktop.accessibility().hitTests();
    engine.reset();
    settle();
    EXPECT_EQ(desktop.accessibility().hitTests(), hitTestsBefore + 1) << "the hit-test ran";
    EXPECT_EQ(desktop.executor().mainQueue().pending(), 0u);
}

TEST_F(EngineLifetimeTest, EngineFreedWhileItsAnswerWaitsOnTheMainQueueIsLeftAlone) {
    openMissionControl();
    desktop.eventTap().deliver(SimInput::mouseMoved(inside(thumbOf("Notes"))));
    hoverQueue().drain();
    ASSERT_EQ(desktop.executor().mainQueue().pending(), 1u);
    engine.reset();
    settle();
    EXPECT_EQ(desktop.executor().mainQueue().pending(), 0u);
}

TEST_F(EngineLifetimeTest, NextHitTestAfterAnAnswerReusesTheJobAndStillFindsTheWindow) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    move(inside(thumbOf("Start Page")));
    ASSERT_TRUE(engine->target());
    EXPECT_EQ(engine->target()->pid, desktop.window(windowTitled("Start Page"))->pid);
}

}  // namespace
}  // namespace vistrel::testing
