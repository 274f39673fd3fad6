#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

#include "app/app_delegate.h"
#include "engine_scenario.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "settings_app/settings_model.h"
#include "support/sim_test.h"

// The Settings app and the agent together on one simulated desktop: what the user changes
// in Settings, the agent shows.

namespace vistrel {
namespace {

// The Settings app's model as its own process makes it: with its own bundle identifier it
// opens the shared domain as a suite, while the agent reads the domain as its standard one.
std::unique_ptr<SettingsModel> openSettingsApp(SimDesktop& desktop) {
    const std::optional<std::string> agent = desktop.bundle.identifier;
    desktop.bundle.identifier = std::string(SettingsModel::bundleIdentifier);
    auto store = Shared::store();
    desktop.bundle.identifier = agent;
    return std::make_unique<SettingsModel>(store, LaunchOptions{});
}

class SettingsAppEngineStoryTest : public testing::EngineScenario {};

TEST_F(SettingsAppEngineStoryTest, TurningOnTheMinimizeButtonShowsTwoButtonsOnTheNextHover) {
    openMissionControl();
    move(inside(thumbOf("Notes")));
    ASSERT_TRUE(engine->layout());
    EXPECT_EQ(engine->layout()->items.size(), 1u);
    move({0, 0});

    openSettingsApp(desktop)->setOn("buttons.minimize", true);
    move(inside(thumbOf("Notes")));
    ASSERT_TRUE(engine->layout());
    EXPECT_EQ(engine->layout()->items.size(), 2u);
    EXPECT_TRUE(buttonCentre(OverlayButton::minimize));
}

class SettingsAppMenuBarStoryTest : public testing::SimTest {
  protected:
    SettingsAppMenuBarStoryTest() {
        Shared::store()->set(std::string(PreferenceKey::onboardingCompleted), true);
        delegate.applicationDidFinishLaunching();
        desktop.executor().advance(1);
    }
    bool statusItemVisible() {
        const auto& items = desktop.statusBar().items();
        return !items.empty() && items.front()->isVisible();
    }

    AppDelegate delegate;
};

TEST_F(SettingsAppMenuBarStoryTest, HidingTheMenuBarIconInSettingsTakesTheStatusItemAway) {
    ASSERT_TRUE(statusItemVisible());
    const auto settings = openSettingsApp(desktop);
    settings->setOn("general.menuBarIcon", false);
    desktop.executor().runUntilIdle();
    EXPECT_FALSE(statusItemVisible());
    settings->setOn("general.menuBarIcon", true);
    desktop.executor().runUntilIdle();
    EXPECT_TRUE(statusItemVisible());
}

}  // namespace
}  // namespace vistrel
