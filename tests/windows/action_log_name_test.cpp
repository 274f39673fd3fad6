#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "window_test.h"
#include "windows/window_actions.h"

namespace vistrel {
namespace {

struct LogNameCase {
    Hotkey hotkey;
    std::string line;
};

// Every action, on a desktop where it can succeed, says what it did in its own words.
class ActionLogNameTest : public testing::WindowTest,
                          public ::testing::WithParamInterface<LogNameCase> {
  protected:
    static constexpr Pid notesPid = 512;

    ActionLogNameTest() {
        addApp("com.apple.Notes", "Notes", ActivationPolicy::regular, notesPid);
        addApp("com.apple.Music", "Music");
        notes = addWindow(notesPid, "Notes", {200, 150, 600, 400});
    }

    SimWindowId notes = 0;
};

TEST_P(ActionLogNameTest, TheLineNamesTheActionThePidAndTheTitle) {
    WindowActions::perform(element(notes), notesPid, GetParam().hotkey);
    desktop.executor().runUntilIdle();

    EXPECT_EQ(log(), std::vector<std::string>{GetParam().line});
}

INSTANTIATE_TEST_SUITE_P(
    EveryHotkey, ActionLogNameTest,
    ::testing::Values(
        LogNameCase{Hotkey::close, "did close window (pid 512, \"Notes\") using hot key"},
        LogNameCase{Hotkey::closeAll, "did close all windows (pid 512, \"Notes\") using hot key"},
        LogNameCase{Hotkey::minimize, "did minimize window (pid 512, \"Notes\") using hot key"},
        LogNameCase{Hotkey::maximize, "did maximize window (pid 512, \"Notes\") using hot key"},
        LogNameCase{Hotkey::hide,
                    "did hide app containing window (pid 512, \"Notes\") using hot key"},
        LogNameCase{Hotkey::hideOthers,
                    "did hide apps not containing window (pid 512, \"Notes\") using hot key"},
        LogNameCase{Hotkey::kill,
                    "did kill app containing window (pid 512, \"Notes\") using hot key"}),
    [](const ::testing::TestParamInfo<LogNameCase>& info) {
        return std::string(name(info.param.hotkey));
    });

}  // namespace
}  // namespace vistrel
