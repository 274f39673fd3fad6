#include <gtest/gtest.h>

#include <set>
#include <string>

#include "settings/preference_key.h"
#include "settings/settings.h"
#include "settings_app_test.h"

namespace vistrel {
namespace {

class SettingsModelValuesTest : public testing::SettingsAppTest {
  protected:
    std::unique_ptr<SettingsModel> model = launch();
};

TEST_F(SettingsModelValuesTest, EverySwitchShowsItsKeysDefaultWhenUnset) {
    EXPECT_TRUE(model->isOn("general.menuBarIcon"));
    EXPECT_FALSE(model->isOn("general.launchAtLogin"));
    EXPECT_FALSE(model->isOn("buttons.minimize"));
    EXPECT_FALSE(model->isOn("buttons.maximize"));
    EXPECT_TRUE(model->isOn("layouts.enabled"));
    EXPECT_TRUE(model->isOn("layouts.shelf"));
    EXPECT_TRUE(model->isOn("layouts.launchApps"));
    for (const Hotkey hotkey : allHotkeys) {
        EXPECT_TRUE(model->isOn("shortcuts." + std::string(name(hotkey)))) << name(hotkey);
    }
}

TEST_F(SettingsModelValuesTest, EveryChoiceAndTheGapShowTheirDefaultsWhenUnset) {
    EXPECT_EQ(model->choice("general.maximizeMode"), "fullscreen");
    EXPECT_EQ(model->choice("buttons.size"), "medium");
    EXPECT_EQ(model->choice("buttons.theme"), "classic");
    EXPECT_EQ(model->number("layouts.gap"), 0);
}

TEST_F(SettingsModelValuesTest, SwitchesWriteBooleansToTheSharedDomain) {
    model->setOn("buttons.minimize", true);
    model->setOn("layouts.shelf", false);
    EXPECT_EQ(stored(PreferenceKey::showMinimizeButton), DefaultsValue(true));
    EXPECT_EQ(stored(PreferenceKey::layoutsShelf), DefaultsValue(false));
}

TEST_F(SettingsModelValuesTest, TheMenuBarSwitchWritesTheHiddenKeyNegated) {
    model->setOn("general.menuBarIcon", false);
    EXPECT_EQ(stored(PreferenceKey::menuBarIconHidden), DefaultsValue(true));
    EXPECT_FALSE(model->isOn("general.menuBarIcon"));
}

TEST_F(SettingsModelValuesTest, AShortcutSwitchedOffWritesItsDisabledKey) {
    model->setOn("shortcuts.closeAll", false);
    EXPECT_EQ(stored(Shared::Key::hotkeyDisabled(Hotkey::closeAll)), DefaultsValue(true));
    EXPECT_TRUE(Settings(store).hotkeyDisabled(Hotkey::closeAll));
    EXPECT_FALSE(model->isOn("shortcuts.closeAll"));
    EXPECT_TRUE(model->isOn("shortcuts.close"));
}

TEST_F(SettingsModelValuesTest, FollowingDisplaysOffersByDefaultAndWritesTheChosenWord) {
    EXPECT_EQ(model->choice("layouts.followDisplays"), "ask");
    model->choose("layouts.followDisplays", "automatic");
    EXPECT_EQ(stored(PreferenceKey::layoutsFollowDisplays), DefaultsValue("automatic"));
    EXPECT_EQ(Settings(store).layoutsFollowDisplays(), FollowDisplaysMode::automatic);
    model->choose("layouts.followDisplays", "off");
    EXPECT_EQ(Settings(store).layoutsFollowDisplays(), FollowDisplaysMode::off);
}

TEST_F(SettingsModelValuesTest, ChoicesWriteTheOptionsTextValue) {
    model->choose("buttons.size", "large");
    model->choose("buttons.theme", "graphite");
    model->choose("general.maximizeMode", "fill");
    EXPECT_EQ(stored(PreferenceKey::buttonSizeOption), DefaultsValue("large"));
    EXPECT_EQ(stored(PreferenceKey::buttonTheme), DefaultsValue("graphite"));
    EXPECT_EQ(stored(PreferenceKey::maximizeMode), DefaultsValue("fill"));
    // What the agent reads from them.
    EXPECT_EQ(Settings(store).buttonSize(), 32);
    EXPECT_TRUE(Settings(store).maximizeFills());
}

TEST_F(SettingsModelValuesTest, AChoiceThatIsNotOfferedIsNotWritten) {
    model->choose("buttons.theme", "Graphite");
    EXPECT_TRUE(stored(PreferenceKey::buttonTheme).isNone());
}

TEST_F(SettingsModelValuesTest, TheGapIsWrittenAsANumber) {
    model->setNumber("layouts.gap", 12);
    EXPECT_EQ(stored(PreferenceKey::layoutsGap), DefaultsValue(12.0));
    EXPECT_EQ(Settings(store).layoutsGap(), 12);
}

TEST_F(SettingsModelValuesTest, TheGapSliderClampsWhatItWrites) {
    model->setNumber("layouts.gap", 55);
    EXPECT_EQ(stored(PreferenceKey::layoutsGap), DefaultsValue(40.0));
    model->setNumber("layouts.gap", -5);
    EXPECT_EQ(stored(PreferenceKey::layoutsGap), DefaultsValue(0.0));
}

TEST_F(SettingsModelValuesTest, TheGapSliderClampsWhatItReads) {
    put(PreferenceKey::layoutsGap, 55.0);
    EXPECT_EQ(model->number("layouts.gap"), 40);
    put(PreferenceKey::layoutsGap, -5);
    EXPECT_EQ(model->number("layouts.gap"), 0);
    put(PreferenceKey::layoutsGap, 12.5);
    EXPECT_EQ(model->number("layouts.gap"), 12.5);
}

TEST_F(SettingsModelValuesTest, TheGapSliderMovesInWholePoints) {
    model->setNumber("layouts.gap", 7.4);
    EXPECT_EQ(stored(PreferenceKey::layoutsGap), DefaultsValue(7.0));
}

TEST_F(SettingsModelValuesTest, ValuesOfTheWrongTypeShowTheDefault) {
    put(PreferenceKey::layoutsEnabled, "no");
    put(PreferenceKey::showMinimizeButton, "yes");
    put(PreferenceKey::menuBarIconHidden, 1);
    put(PreferenceKey::buttonSizeOption, true);
    put(PreferenceKey::buttonTheme, "sparkly");
    put(PreferenceKey::maximizeMode, 3.0);
    put(PreferenceKey::layoutsGap, "wide");
    put(Shared::Key::hotkeyDisabled(Hotkey::kill), "yes");
    EXPECT_TRUE(model->isOn("layouts.enabled"));
    EXPECT_FALSE(model->isOn("buttons.minimize"));
    EXPECT_TRUE(model->isOn("general.menuBarIcon"));
    EXPECT_EQ(model->choice("buttons.size"), "medium");
    EXPECT_EQ(model->choice("buttons.theme"), "classic");
    EXPECT_EQ(model->choice("general.maximizeMode"), "fullscreen");
    EXPECT_EQ(model->number("layouts.gap"), 0);
    EXPECT_TRUE(model->isOn("shortcuts.kill"));
}

TEST_F(SettingsModelValuesTest, ValuesAreReadAtEachCallSoChangesElsewhereShowAtOnce) {
    EXPECT_FALSE(model->isOn("buttons.maximize"));
    put(PreferenceKey::showMaximizeButton, true);
    EXPECT_TRUE(model->isOn("buttons.maximize"));
}

TEST_F(SettingsModelValuesTest, TheLayoutsOptionsCanBeUsedOnlyWhileLayoutsIsOn) {
    EXPECT_TRUE(model->isEnabled("layouts.shelf"));
    model->setOn("layouts.enabled", false);
    EXPECT_FALSE(model->isEnabled("layouts.shelf"));
    EXPECT_FALSE(model->isEnabled("layouts.launchApps"));
    EXPECT_FALSE(model->isEnabled("layouts.gap"));
    EXPECT_TRUE(model->isEnabled("layouts.enabled"));
    EXPECT_TRUE(model->isEnabled("buttons.minimize"));
}

TEST_F(SettingsModelValuesTest, UnknownControlsReadNothingAndWriteNothing) {
    EXPECT_EQ(model->control("general.nothing"), nullptr);
    EXPECT_FALSE(model->isOn("general.nothing"));
    model->setOn("general.nothing", true);
    model->setOn("layouts.gap", true);
    model->setNumber("buttons.minimize", 3);
    EXPECT_TRUE(stored(PreferenceKey::layoutsGap).isNone());
    EXPECT_TRUE(stored(PreferenceKey::showMinimizeButton).isNone());
}

TEST_F(SettingsModelValuesTest, AChangeTellsTheObservers) {
    int told = 0;
    const auto token = model->observe([&] { ++told; });
    model->setOn("buttons.minimize", true);
    model->choose("buttons.size", "small");
    EXPECT_EQ(told, 2);
    model->stopObserving(token);
    model->setNumber("layouts.gap", 3);
    EXPECT_EQ(told, 2);
}

TEST_F(SettingsModelValuesTest, EveryControlIdIsUniqueAndEveryBoundControlIsReachable) {
    std::set<std::string> ids;
    for (const auto* list : {&model->pages(), &model->welcomeSteps()}) {
        for (const Page& page : *list) {
            for (const Section& section : page.sections) {
                for (const Control& control : section.controls) {
                    EXPECT_TRUE(ids.insert(control.id).second) << control.id;
                    EXPECT_EQ(model->control(control.id), &control);
                }
            }
        }
    }
}

}  // namespace
}  // namespace vistrel
