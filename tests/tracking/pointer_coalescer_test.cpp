#include "tracking/pointer_coalescer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/sim_test.h"

namespace vistrel {
namespace {

// Records what reaches the handlers, in order, as short words.
class PointerCoalescerTest : public testing::SimTest {
  protected:
    SimQueue& mainQueue() { return desktop.executor().mainQueue(); }

    std::vector<std::string> handled;
    PointerCoalescer coalescer{
        {.moved =
             [this](Point point, bool dragged) {
                 handled.push_back((dragged ? "drag " : "move ") + at(point));
             },
         .released = [this](Point point) { handled.push_back("release " + at(point)); },
         .flagsChanged =
             [this](std::uint64_t flags) { handled.push_back("flags " + std::to_string(flags)); }}};

  private:
    static std::string at(Point point) { return std::to_string(static_cast<int>(point.x)); }
};

TEST_F(PointerCoalescerTest, AReleaseAndAModifierChangeWaitForTheNextTurnOfTheMainQueue) {
    coalescer.postRelease({1, 0});
    coalescer.postFlags(8);
    EXPECT_TRUE(handled.empty()) << "handled inside the tap's callback";
    EXPECT_EQ(mainQueue().pending(), 1u) << "one turn for everything the callback recorded";
    mainQueue().runOne();
    EXPECT_EQ(handled, (std::vector<std::string>{"release 1", "flags 8"}));
}

TEST_F(PointerCoalescerTest, AReleaseStaysBetweenTheMovesBeforeAndAfterIt) {
    coalescer.post({1, 0}, true);
    coalescer.post({2, 0}, true);
    coalescer.postRelease({3, 0});
    coalescer.post({4, 0}, false);
    coalescer.post({5, 0}, false);
    mainQueue().runOne();
    EXPECT_EQ(handled, (std::vector<std::string>{"drag 2", "release 3", "move 5"}));
}

TEST_F(PointerCoalescerTest, OnlyTheNewestModifierKeysAreHandledAfterThePointersEvents) {
    coalescer.postFlags(8);
    coalescer.post({1, 0}, false);
    coalescer.postFlags(0);
    mainQueue().runOne();
    EXPECT_EQ(handled, (std::vector<std::string>{"move 1", "flags 0"}));
}

TEST_F(PointerCoalescerTest, AFlushHandlesEverythingPendingAtOnceAndTheTurnFindsNothing) {
    coalescer.post({1, 0}, false);
    coalescer.postRelease({2, 0});
    coalescer.flush();
    EXPECT_EQ(handled, (std::vector<std::string>{"move 1", "release 2"}));
    EXPECT_FALSE(coalescer.pending());
    mainQueue().runOne();
    EXPECT_EQ(handled.size(), 2u);
}

}  // namespace
}  // namespace vistrel
