#include "settings/shared.h"

#include <gtest/gtest.h>

#include "platform/sim/sim_desktop.h"
#include "settings/settings.h"

namespace vistrel {
namespace {

TEST(Shared, HotkeyDisabledKeyNamesTheHotkeyCase) {
    EXPECT_EQ(Shared::Key::hotkeyDisabled(Hotkey::close), "hotkey.close.disabled");
    EXPECT_EQ(Shared::Key::hotkeyDisabled(Hotkey::closeAll), "hotkey.closeAll.disabled");
    EXPECT_EQ(Shared::Key::hotkeyDisabled(*hotkeyFromRaw(5)), "hotkey.hideOthers.disabled");
    EXPECT_EQ(Shared::Key::hotkeyDisabled(Hotkey::kill), "hotkey.kill.disabled");
}

TEST(Shared, CommandChannelHasItsFixedName) {
    EXPECT_EQ(Shared::Command::name, "com.quillmarsh.vistrel.command");
}

TEST(Shared, TheAgentUsesItsStandardDefaults) {
    SimDesktop agent;
    ScopedPlatform installed(agent);
    Shared::store()->set("probe", true);
    EXPECT_EQ(agent.defaults().domain("com.quillmarsh.vistrel")->object("probe").boolean(), true);
}

TEST(Shared, TheSettingsAppAndTheAgentReadAndWriteTheSameValues) {
    // One defaults system, seen first by the Settings app, then by the agent.
    SimDesktop desktop;
    ScopedPlatform installed(desktop);
    desktop.bundle.identifier = "com.quillmarsh.vistrel.settings";
    Shared::store()->set("buttonSizeOption", "large");
    EXPECT_TRUE(desktop.defaults().standard()->object("buttonSizeOption").isNone());

    desktop.bundle.identifier = "com.quillmarsh.vistrel";
    EXPECT_EQ(Settings(Shared::store()).buttonSize(), 32);
    Settings(Shared::store()).publishStatus();

    desktop.bundle.identifier = "com.quillmarsh.vistrel.settings";
    EXPECT_EQ(Shared::store()->object("agent.accessibilityTrusted").boolean(), true);
}

TEST(Shared, AnotherProcessFallsBackToStandardDefaultsWhenTheSuiteCannotBeMade) {
    SimDesktop other;
    other.bundle.identifier.reset();
    other.defaults().suitesFail = true;
    ScopedPlatform installed(other);
    auto store = Shared::store();
    ASSERT_NE(store, nullptr);
    store->set("probe", 1);
    EXPECT_EQ(other.defaults().standard()->object("probe").integer(), 1);
}

}  // namespace
}  // namespace vistrel
