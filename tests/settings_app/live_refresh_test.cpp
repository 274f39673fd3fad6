#include <gtest/gtest.h>

#include <string>

#include "settings/preference_key.h"
#include "settings_app_test.h"

// An open Settings window follows what other processes change in the shared domain.

namespace vistrel {
namespace {

using LiveRefreshTest = testing::SettingsAppTest;

TEST_F(LiveRefreshTest, APageWithoutTheseKeysIsNotToldOfThem) {
    const auto model = launch();
    model->setVisible(true);
    model->selectPage(PageId::buttons);
    int told = 0;
    model->observe([&] { ++told; });
    agentPublishes(PreferenceKey::agentAccessibilityTrusted, true);
    wait(3);
    EXPECT_EQ(told, 0);
    model->selectPage(PageId::general);
    EXPECT_EQ(told, 1);
}

TEST_F(LiveRefreshTest, TheGeneralPageRefreshesWhenTheAgentPublishes) {
    const auto model = launch();
    model->setVisible(true);
    int told = 0;
    model->observe([&] { ++told; });
    agentPublishes(PreferenceKey::agentAccessibilityTrusted, true);
    wait(SettingsModel::statusRefreshInterval);
    EXPECT_EQ(told, 1);
    wait(5);
    EXPECT_EQ(told, 1);
}

TEST_F(LiveRefreshTest, AShortcutSwitchedOffInTheStatusPanelShowsWithinASecond) {
    const auto model = launch();
    model->setVisible(true);
    model->selectPage(PageId::shortcuts);
    int told = 0;
    model->observe([&] { ++told; });
    put(Shared::Key::hotkeyDisabled(Hotkey::hide), true);
    wait(SettingsModel::statusRefreshInterval);
    EXPECT_EQ(told, 1);
    EXPECT_FALSE(model->isOn("shortcuts.hide"));
}

TEST_F(LiveRefreshTest, ALayoutSavedFromTheMenuAppearsInTheListWithinASecond) {
    const auto model = launch();
    model->setVisible(true);
    model->selectPage(PageId::layouts);
    int told = 0;
    model->observe([&] { ++told; });
    put(PreferenceKey::layoutsSaved, "[]");
    wait(SettingsModel::statusRefreshInterval);
    EXPECT_EQ(told, 1);
}

TEST_F(LiveRefreshTest, TheAboutPageReadsNoKeysAndSoDoesNotPoll) {
    const auto model = launch({"--about"});
    model->setVisible(true);
    EXPECT_FALSE(desktop.executor().nextEventTime());
    model->selectPage(PageId::general);
    EXPECT_TRUE(desktop.executor().nextEventTime());
    model->setVisible(false);
    EXPECT_FALSE(desktop.executor().nextEventTime());
}

}  // namespace
}  // namespace vistrel
