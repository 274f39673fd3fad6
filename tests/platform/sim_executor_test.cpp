#include "platform/sim/sim_executor.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <thread>
#include <vector>

namespace vistrel {
namespace {

class SimExecutorTest : public ::testing::Test {
  protected:
    SimClock clock;
    SimExecutor executor{clock};
    std::vector<std::string> ran;
};

TEST_F(SimExecutorTest, QueuedWorkRunsOnlyWhenTheTestDrivesIt) {
    executor.main().async([this] { ran.push_back("main"); });
    EXPECT_TRUE(ran.empty());
    EXPECT_EQ(executor.runUntilIdle(), 1u);
    EXPECT_EQ(ran, std::vector<std::string>{"main"});
}

TEST_F(SimExecutorTest, SerialQueueRunsTasksInOrderOneAtATime) {
    auto queue = executor.makeQueue("test.queue", QualityOfService::utility);
    for (int i = 0; i < 3; ++i)
        queue->async([this, i] { ran.push_back(std::to_string(i)); });
    auto sim = executor.queue("test.queue");
    ASSERT_NE(sim, nullptr);
    EXPECT_TRUE(sim->runOne());
    EXPECT_EQ(ran, std::vector<std::string>{"0"});
    EXPECT_EQ(sim->drain(), 2u);
    EXPECT_EQ(ran, (std::vector<std::string>{"0", "1", "2"}));
}

TEST_F(SimExecutorTest, SyncRunsEverythingHandedOverBeforeIt) {
    auto queue = executor.makeQueue("test.queue", QualityOfService::utility);
    queue->async([this] { ran.push_back("earlier"); });
    queue->sync([this] { ran.push_back("sync"); });
    EXPECT_EQ(ran, (std::vector<std::string>{"earlier", "sync"}));
}

TEST_F(SimExecutorTest, DelayedWorkFiresWhenVirtualTimeReachesIt) {
    const double start = clock.now();
    executor.main().after(0.7, [this] { ran.push_back("late"); });
    executor.advance(0.69);
    EXPECT_TRUE(ran.empty());
    executor.advance(0.01);
    EXPECT_EQ(ran, std::vector<std::string>{"late"});
    EXPECT_DOUBLE_EQ(clock.now(), start + 0.7);
}

TEST_F(SimExecutorTest, TimersFireInTimeOrderAndRecordTheirTolerance) {
    auto slow = executor.oneShot(0.5, 0.05, [this] { ran.push_back("slow"); });
    auto fast = executor.oneShot(0.066, 0.0066, [this] { ran.push_back("fast"); });
    EXPECT_TRUE(executor.advanceToNextEvent());
    EXPECT_EQ(ran, std::vector<std::string>{"fast"});
    executor.advance(1);
    EXPECT_EQ(ran, (std::vector<std::string>{"fast", "slow"}));
    ASSERT_EQ(executor.timers().size(), 2u);
    EXPECT_DOUBLE_EQ(executor.timers()[1].tolerance, 0.0066);
}

TEST_F(SimExecutorTest, FreeingATimerCancelsIt) {
    auto timer = executor.oneShot(0.1, 0.01, [this] { ran.push_back("fired"); });
    timer.reset();
    executor.advance(1);
    EXPECT_TRUE(ran.empty());
    EXPECT_FALSE(executor.nextEventTime().has_value());
}

TEST_F(SimExecutorTest, SleepingOnABackgroundQueueAdvancesVirtualTimeAtOnce) {
    const double start = clock.now();
    auto queue = executor.makeQueue("test.sleeper", QualityOfService::userInitiated);
    // The virtual clock's own sleep, as background work calls it through Clock.
    queue->async([this] { std::invoke(&Clock::sleep, clock, 0.7); });
    executor.runUntilIdle();
    EXPECT_DOUBLE_EQ(clock.now(), start + 0.7);
}

TEST_F(SimExecutorTest, WorkHandedOverFromAnotherThreadIsKept) {
    auto queue = executor.makeQueue("test.threads", QualityOfService::utility);
    std::thread writer([&] {
        for (int i = 0; i < 1000; ++i)
            queue->async([] {});
    });
    writer.join();
    EXPECT_EQ(executor.runUntilIdle(), 1000u);
}

}  // namespace
}  // namespace vistrel
