#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "window_test.h"
#include "windows/window_actions.h"

namespace vistrel {
namespace {

using testing::WindowTest;

class HideOthersTest : public WindowTest {
  protected:
    HideOthersTest() {
        // The agent counts as an ordinary application here, so only its own process
        // identifier keeps it from being hidden.
        agent =
            addApp("com.quillmarsh.vistrel", "Vistrel", ActivationPolicy::regular, desktop.ownPid);
        kept = addApp("com.apple.Mail", "Mail");
        accessory = addApp("com.example.clipboard", "Clipboard", ActivationPolicy::accessory);
        background = addApp("com.example.daemon", "Daemon", ActivationPolicy::prohibited);
        mailWindow = addWindow(kept, "Inbox", {100, 100, 800, 600});
    }

    bool hidden(Pid pid) { return desktop.application(pid)->hidden; }

    Pid agent = 0;
    Pid kept = 0;
    Pid accessory = 0;
    Pid background = 0;
    SimWindowId mailWindow = 0;
};

TEST_F(HideOthersTest, HidesEveryOtherOrdinaryApplication) {
    const Pid music = addApp("com.apple.Music", "Music");
    const Pid maps = addApp("com.apple.Maps", "Maps");

    EXPECT_TRUE(WindowActions::hideOthers(kept));

    EXPECT_TRUE(hidden(music));
    EXPECT_TRUE(hidden(maps));
}

TEST_F(HideOthersTest, NeverHidesTheAgentTheKeptApplicationOrAccessoryAndBackgroundApplications) {
    addApp("com.apple.Music", "Music");

    WindowActions::hideOthers(kept);

    EXPECT_FALSE(hidden(agent));
    EXPECT_FALSE(hidden(kept));
    EXPECT_FALSE(hidden(accessory));
    EXPECT_FALSE(hidden(background));
}

TEST_F(HideOthersTest, FailsWhenThereIsNothingElseToHide) {
    EXPECT_FALSE(WindowActions::hideOthers(kept));
}

TEST_F(HideOthersTest, CountsAnApplicationAlreadyHidden) {
    const Pid music = addApp("com.apple.Music", "Music");
    desktop.application(music)->hidden = true;

    EXPECT_TRUE(WindowActions::hideOthers(kept));
}

TEST_F(HideOthersTest, TheHotKeyKeepsTheHoveredWindowsApplicationAndLogsIt) {
    const Pid music = addApp("com.apple.Music", "Music");

    WindowActions::perform(element(mailWindow), kept, Hotkey::hideOthers);
    desktop.executor().runUntilIdle();

    EXPECT_TRUE(hidden(music));
    EXPECT_FALSE(hidden(kept));
    EXPECT_EQ(log(), std::vector<std::string>{"did hide apps not containing window (pid " +
                                              std::to_string(kept) + ", \"Inbox\") using hot key"});
}

}  // namespace
}  // namespace vistrel
