// Holding a shortcut down inside Mission Control: the press acts once, and the repeats that
// follow stay with it. A repeat let through would give the application in front Command-W
// after Command-W for a press it never saw.
#include <gtest/gtest.h>

#include <string>

#include "base/hotkey.h"
#include "engine_scenario.h"
#include "support/presented.h"

namespace vistrel::testing {
namespace {

constexpr std::uint64_t command = ModifierFlag::command;

class KeyRepeatTest : public Presented<EngineScenario> {
  protected:
    // Every window action leaves one line saying what it did to which window.
    std::size_t windowActions() {
        std::size_t count = 0;
        for (const auto& line : desktop.systemLog().lines())
            count += line.message.find("using hot key") != std::string::npos ? 1 : 0;
        return count;
    }
};

TEST_P(KeyRepeatTest, HoldingCommandWClosesTheHoveredWindowOnceAndKeepsItsRepeatsFromTheSystem) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    const Pid startPage = desktop.window(windowTitled("Start Page"))->pid;
    const std::size_t startPageWindows = desktop.windowsOf(startPage).size();
    EXPECT_FALSE(key(KeyCode::w, command));
    EXPECT_TRUE(desktop.window(windowTitled("Notes"))->closed);
    EXPECT_FALSE(key(KeyCode::w, command, true));
    EXPECT_FALSE(key(KeyCode::w, command, true));
    EXPECT_FALSE(keyUp(KeyCode::w));
    EXPECT_EQ(windowActions(), 1u);
    EXPECT_EQ(desktop.windowsOf(startPage).size(), startPageWindows);
}

TEST_P(KeyRepeatTest, ARepeatWhosePressWentToTheSystemGoesOnAndActsOnNothing) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    ASSERT_TRUE(engine->target());
    EXPECT_TRUE(key(KeyCode::w, command, true));
    EXPECT_FALSE(desktop.window(windowTitled("Notes"))->closed);
    EXPECT_EQ(windowActions(), 0u);
}

INSTANTIATE_ON_EVERY_PRESENTATION(KeyRepeatTest);

}  // namespace
}  // namespace vistrel::testing
