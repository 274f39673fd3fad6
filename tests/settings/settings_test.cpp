#include "settings/settings.h"

#include <gtest/gtest.h>

#include "platform/sim/sim_desktop.h"
#include "settings/preference_key.h"
#include "settings/shared.h"
#include "support/sim_test.h"

namespace vistrel {
namespace {

using testing::SimTest;

class SettingsTest : public SimTest {
  protected:
    SimDefaultsStore& domain() { return *desktop.defaults().domain("com.quillmarsh.vistrel"); }
    void store(std::string_view key, const DefaultsValue& value) {
        domain().set(std::string(key), value);
    }
    DefaultsValue stored(std::string_view key) { return domain().object(std::string(key)); }
    Settings& settings() { return Settings::shared(); }
};

TEST_F(SettingsTest, WithNoKeysSetEverythingReadsItsDefault) {
    EXPECT_EQ(settings().enabledButtons(), std::vector<OverlayButton>{OverlayButton::close});
    EXPECT_EQ(settings().buttonSize(), 25);
    EXPECT_TRUE(settings().layoutsEnabled());
    EXPECT_TRUE(settings().layoutsShelf());
    EXPECT_TRUE(settings().layoutsLaunchApps());
    EXPECT_EQ(settings().layoutsGap(), 0);
    EXPECT_FALSE(settings().showMinimize());
    EXPECT_FALSE(settings().showMaximize());
    EXPECT_FALSE(settings().maximizeFills());
    EXPECT_FALSE(settings().menuBarIconHidden());
    EXPECT_FALSE(settings().onboardingCompleted());
    EXPECT_FALSE(settings().layoutsDebugGeometry());
    EXPECT_FALSE(settings().buttonTheme().has_value());
    for (Hotkey hotkey : allHotkeys)
        EXPECT_FALSE(settings().hotkeyDisabled(hotkey));
}

TEST_F(SettingsTest, EnabledButtonsKeepCloseFirstThenMinimizeThenMaximize) {
    store(PreferenceKey::showMaximizeButton, true);
    EXPECT_EQ(settings().enabledButtons(),
              (std::vector<OverlayButton>{OverlayButton::close, OverlayButton::maximize}));
    store(PreferenceKey::showMinimizeButton, true);
    EXPECT_EQ(settings().enabledButtons(),
              (std::vector<OverlayButton>{OverlayButton::close, OverlayButton::minimize,
                                          OverlayButton::maximize}));
}

TEST_F(SettingsTest, ButtonSizeOptionNamesThreeSizesAndAnythingElseIsMedium) {
    store(PreferenceKey::buttonSizeOption, "large");
    EXPECT_EQ(settings().buttonSize(), 32);
    store(PreferenceKey::buttonSizeOption, "small");
    EXPECT_EQ(settings().buttonSize(), 20);
    store(PreferenceKey::buttonSizeOption, "medium");
    EXPECT_EQ(settings().buttonSize(), 25);
    store(PreferenceKey::buttonSizeOption, "huge");
    EXPECT_EQ(settings().buttonSize(), 25);
    store(PreferenceKey::buttonSizeOption, "Large");
    EXPECT_EQ(settings().buttonSize(), 25);
    store(PreferenceKey::buttonSizeOption, 32);
    EXPECT_EQ(settings().buttonSize(), 25);
}

TEST_F(SettingsTest, LayoutsGapIsClampedToZeroThroughForty) {
    store(PreferenceKey::layoutsGap, -5.0);
    EXPECT_EQ(settings().layoutsGap(), 0);
    store(PreferenceKey::layoutsGap, 55.0);
    EXPECT_EQ(settings().layoutsGap(), 40);
    store(PreferenceKey::layoutsGap, 12.5);
    EXPECT_EQ(settings().layoutsGap(), 12.5);
    store(PreferenceKey::layoutsGap, 40);
    EXPECT_EQ(settings().layoutsGap(), 40);
    store(PreferenceKey::layoutsGap, 8);
    EXPECT_EQ(settings().layoutsGap(), 8);
}

TEST_F(SettingsTest, LayoutsEnabledStoredAsTextReadsTheDefaultTrue) {
    store(PreferenceKey::layoutsEnabled, "false");
    EXPECT_TRUE(settings().layoutsEnabled());
    store(PreferenceKey::layoutsEnabled, false);
    EXPECT_FALSE(settings().layoutsEnabled());
}

TEST_F(SettingsTest, EveryTypedAccessorReadsItsDefaultWhenTheValueHasTheWrongType) {
    const DefaultsValue wrong = DefaultsValue::Array{DefaultsValue(1)};
    for (std::string_view key :
         {PreferenceKey::showMinimizeButton, PreferenceKey::showMaximizeButton,
          PreferenceKey::buttonSizeOption, PreferenceKey::buttonTheme, PreferenceKey::maximizeMode,
          PreferenceKey::menuBarIconHidden, PreferenceKey::onboardingCompleted,
          PreferenceKey::layoutsEnabled, PreferenceKey::layoutsShelf,
          PreferenceKey::layoutsLaunchApps, PreferenceKey::layoutsGap,
          PreferenceKey::layoutsDebugGeometry}) {
        store(key, wrong);
    }
    for (Hotkey hotkey : allHotkeys)
        domain().set(Shared::Key::hotkeyDisabled(hotkey), "yes");

    EXPECT_FALSE(settings().showMinimize());
    EXPECT_FALSE(settings().showMaximize());
    EXPECT_EQ(settings().buttonSize(), 25);
    EXPECT_FALSE(settings().buttonTheme().has_value());
    EXPECT_FALSE(settings().maximizeFills());
    EXPECT_FALSE(settings().menuBarIconHidden());
    EXPECT_FALSE(settings().onboardingCompleted());
    EXPECT_TRUE(settings().layoutsEnabled());
    EXPECT_TRUE(settings().layoutsShelf());
    EXPECT_TRUE(settings().layoutsLaunchApps());
    EXPECT_EQ(settings().layoutsGap(), 0);
    EXPECT_FALSE(settings().layoutsDebugGeometry());
    for (Hotkey hotkey : allHotkeys)
        EXPECT_FALSE(settings().hotkeyDisabled(hotkey));
}

TEST_F(SettingsTest, MaximizeModeFillsOnlyForTheExactWordFill) {
    store(PreferenceKey::maximizeMode, "fill");
    EXPECT_TRUE(settings().maximizeFills());
    store(PreferenceKey::maximizeMode, "Fill");
    EXPECT_FALSE(settings().maximizeFills());
    store(PreferenceKey::maximizeMode, "fullscreen");
    EXPECT_FALSE(settings().maximizeFills());
}

TEST_F(SettingsTest, MaximizeModeReadsFullscreenWhenAbsentOrNotText) {
    EXPECT_EQ(settings().maximizeMode(), "fullscreen");
    store(PreferenceKey::maximizeMode, 1);
    EXPECT_EQ(settings().maximizeMode(), "fullscreen");
    store(PreferenceKey::maximizeMode, "fill");
    EXPECT_EQ(settings().maximizeMode(), "fill");
}

TEST_F(SettingsTest, FollowingDisplaysAsksUnlessExactlyOffOrAutomatic) {
    EXPECT_EQ(settings().layoutsFollowDisplays(), FollowDisplaysMode::ask);
    store(PreferenceKey::layoutsFollowDisplays, "automatic");
    EXPECT_EQ(settings().layoutsFollowDisplays(), FollowDisplaysMode::automatic);
    store(PreferenceKey::layoutsFollowDisplays, "off");
    EXPECT_EQ(settings().layoutsFollowDisplays(), FollowDisplaysMode::off);
    for (const DefaultsValue& other :
         {DefaultsValue("Off"), DefaultsValue("always"), DefaultsValue(1), DefaultsValue(true)}) {
        store(PreferenceKey::layoutsFollowDisplays, other);
        EXPECT_EQ(settings().layoutsFollowDisplays(), FollowDisplaysMode::ask);
    }
}

TEST_F(SettingsTest, PreferencesAreReadAtTheMomentOfUse) {
    EXPECT_EQ(settings().buttonSize(), 25);
    store(PreferenceKey::buttonSizeOption, "small");
    EXPECT_EQ(settings().buttonSize(), 20);
}

TEST_F(SettingsTest, HotkeyDisabledReadsTheHotkeysOwnKey) {
    domain().set("hotkey.hideOthers.disabled", true);
    EXPECT_TRUE(settings().hotkeyDisabled(Hotkey::hideOthers));
    EXPECT_FALSE(settings().hotkeyDisabled(Hotkey::hide));
}

TEST_F(SettingsTest, PublishStatusWritesTrustAndLoginItemStatus) {
    desktop.loginItem().setStatus(LoginItemStatus::enabled);
    settings().publishStatus();
    EXPECT_EQ(stored(PreferenceKey::agentAccessibilityTrusted).boolean(), true);
    EXPECT_EQ(stored(PreferenceKey::agentLaunchAtLogin).boolean(), true);
    EXPECT_EQ(stored(PreferenceKey::agentLaunchAtLoginNeedsApproval).boolean(), false);
}

TEST_F(SettingsTest, StatusKeysAreWrittenOnlyWhenTheirValueChanges) {
    settings().publishStatus();
    settings().publishStatus();
    EXPECT_EQ(domain().writes(std::string(PreferenceKey::agentLaunchAtLogin)), 1);
    EXPECT_EQ(domain().writes(std::string(PreferenceKey::agentAccessibilityTrusted)), 1);
    desktop.loginItem().setStatus(LoginItemStatus::enabled);
    settings().publishStatus();
    EXPECT_EQ(domain().writes(std::string(PreferenceKey::agentLaunchAtLogin)), 2);
}

TEST_F(SettingsTest, StatusKeyHoldingTheWrongTypeIsRewritten) {
    store(PreferenceKey::agentLaunchAtLogin, "no");
    settings().publishLoginStatus();
    EXPECT_EQ(stored(PreferenceKey::agentLaunchAtLogin).boolean(), false);
}

TEST_F(SettingsTest, TrustIsPublishedOnTheFirstTickAndThenOnlyWhenItChanges) {
    settings().publishTrustIfChanged();
    EXPECT_EQ(stored(PreferenceKey::agentAccessibilityTrusted).boolean(), true);
    settings().publishTrustIfChanged();
    EXPECT_EQ(domain().writes(std::string(PreferenceKey::agentAccessibilityTrusted)), 1);
    desktop.trusted = false;
    settings().publishTrustIfChanged();
    EXPECT_EQ(stored(PreferenceKey::agentAccessibilityTrusted).boolean(), false);
}

TEST_F(SettingsTest, TrustTickComparesWithWhatItLastPublishedNotWithTheStore) {
    settings().publishTrustIfChanged();
    store(PreferenceKey::agentAccessibilityTrusted, false);
    settings().publishTrustIfChanged();
    EXPECT_EQ(stored(PreferenceKey::agentAccessibilityTrusted).boolean(), false);
}

TEST_F(SettingsTest, TicksOneSecondApartPublishTheLoginStatusOnceAndSixSecondsLaterAgain) {
    settings().publishTrustIfChanged();
    EXPECT_EQ(desktop.loginItem().statusReads(), 1);
    desktop.clock().advanceBy(1);
    settings().publishTrustIfChanged();
    EXPECT_EQ(desktop.loginItem().statusReads(), 1);
    desktop.clock().advanceBy(6);
    settings().publishTrustIfChanged();
    EXPECT_EQ(desktop.loginItem().statusReads(), 2);
}

TEST_F(SettingsTest, LoginStatusIsNotPolledAgainAtExactlyFiveSeconds) {
    settings().publishTrustIfChanged();
    desktop.clock().advanceBy(5);
    settings().publishTrustIfChanged();
    EXPECT_EQ(desktop.loginItem().statusReads(), 1);
}

TEST_F(SettingsTest, TurningLaunchAtLoginOnWhileApprovalIsNeededOpensLoginItems) {
    desktop.loginItem().registrationNeedsApproval = true;
    settings().setLaunchAtLogin(true);
    EXPECT_EQ(desktop.loginItem().settingsOpened(), 1);
    EXPECT_EQ(stored(PreferenceKey::agentLaunchAtLoginNeedsApproval).boolean(), true);
    EXPECT_EQ(stored(PreferenceKey::agentLaunchAtLogin).boolean(), false);
}

TEST_F(SettingsTest, TurningLaunchAtLoginOnRegistersAndPublishes) {
    settings().setLaunchAtLogin(true);
    EXPECT_EQ(desktop.loginItem().settingsOpened(), 0);
    EXPECT_EQ(stored(PreferenceKey::agentLaunchAtLogin).boolean(), true);
    settings().setLaunchAtLogin(false);
    EXPECT_EQ(stored(PreferenceKey::agentLaunchAtLogin).boolean(), false);
}

TEST_F(SettingsTest, FailedLaunchAtLoginChangeIsLoggedAndTheRealStateIsPublished) {
    desktop.loginItem().failure = "Operation not permitted";
    desktop.loginItem().setStatus(LoginItemStatus::requiresApproval);
    settings().setLaunchAtLogin(true);
    EXPECT_EQ(desktop.systemLog().count("launch at login change failed: Operation not permitted"),
              1u);
    EXPECT_EQ(desktop.loginItem().settingsOpened(), 1);
    EXPECT_EQ(stored(PreferenceKey::agentLaunchAtLoginNeedsApproval).boolean(), true);
}

TEST_F(SettingsTest, FailedTurnOffDoesNotOpenLoginItems) {
    desktop.loginItem().failure = "denied";
    desktop.loginItem().setStatus(LoginItemStatus::requiresApproval);
    settings().setLaunchAtLogin(false);
    EXPECT_EQ(desktop.loginItem().settingsOpened(), 0);
}

}  // namespace
}  // namespace vistrel
