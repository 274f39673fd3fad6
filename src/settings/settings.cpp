#include "settings/settings.h"

#include <algorithm>

#include "base/log.h"
#include "platform/platform.h"
#include "settings/preference_key.h"
#include "settings/shared.h"

namespace vistrel {

namespace {

constexpr std::string_view sizeSmall = "small";
constexpr std::string_view sizeLarge = "large";
constexpr std::string_view launchAtLoginFailed = "launch at login change failed: ";

std::string key(std::string_view k) {
    return std::string(k);
}

}  // namespace

Settings& Settings::shared() {
    return perPlatform<Settings>([] { return std::make_unique<Settings>(Shared::store()); });
}

Settings::Settings(std::shared_ptr<DefaultsStore> store) : d_(std::move(store)) {}

bool Settings::flag(std::string_view k, bool fallback) const {
    return d_->object(key(k)).boolean().value_or(fallback);
}

// The store's plain Boolean getter: a missing key, or one of another type, reads false.
bool Settings::plainFlag(std::string_view k) const {
    return flag(k, false);
}

std::vector<OverlayButton> Settings::enabledButtons() const {
    std::vector<OverlayButton> buttons{OverlayButton::close};
    if (showMinimize()) buttons.push_back(OverlayButton::minimize);
    if (showMaximize()) buttons.push_back(OverlayButton::maximize);
    return buttons;
}

double Settings::buttonSize() const {
    const auto option = d_->object(key(PreferenceKey::buttonSizeOption)).string();
    if (option == sizeSmall) return ButtonSize::small;
    if (option == sizeLarge) return ButtonSize::large;
    return ButtonSize::medium;
}

bool Settings::showMinimize() const {
    return flag(PreferenceKey::showMinimizeButton, false);
}
bool Settings::showMaximize() const {
    return flag(PreferenceKey::showMaximizeButton, false);
}
bool Settings::layoutsEnabled() const {
    return flag(PreferenceKey::layoutsEnabled, true);
}
bool Settings::layoutsShelf() const {
    return flag(PreferenceKey::layoutsShelf, true);
}
bool Settings::layoutsLaunchApps() const {
    return flag(PreferenceKey::layoutsLaunchApps, true);
}
bool Settings::layoutsDebugGeometry() const {
    return plainFlag(PreferenceKey::layoutsDebugGeometry);
}
bool Settings::menuBarIconHidden() const {
    return plainFlag(PreferenceKey::menuBarIconHidden);
}
bool Settings::onboardingCompleted() const {
    return plainFlag(PreferenceKey::onboardingCompleted);
}

bool Settings::hotkeyDisabled(Hotkey hotkey) const {
    return plainFlag(Shared::Key::hotkeyDisabled(hotkey));
}

double Settings::layoutsGap() const {
    const double gap = d_->object(key(PreferenceKey::layoutsGap)).number().value_or(0);
    return std::clamp(gap, 0.0, maxLayoutsGap);
}

FollowDisplaysMode Settings::layoutsFollowDisplays() const {
    const std::optional<std::string> mode =
        d_->object(key(PreferenceKey::layoutsFollowDisplays)).string();
    if (mode == FollowDisplays::off) return FollowDisplaysMode::off;
    if (mode == FollowDisplays::automatic) return FollowDisplaysMode::automatic;
    return FollowDisplaysMode::ask;
}

std::optional<std::string> Settings::buttonTheme() const {
    return d_->object(key(PreferenceKey::buttonTheme)).string();
}

std::string Settings::maximizeMode() const {
    return d_->object(key(PreferenceKey::maximizeMode))
        .string()
        .value_or(std::string(MaximizeMode::fullScreen));
}

bool Settings::maximizeFills() const {
    return maximizeMode() == MaximizeMode::fill;
}

void Settings::publish(std::string_view k, bool value) {
    if (d_->object(key(k)).boolean() != value) d_->set(key(k), value);
}

void Settings::publishStatus() {
    publish(PreferenceKey::agentAccessibilityTrusted, platform().accessibility.isProcessTrusted());
    publishLoginStatus();
}

void Settings::publishLoginStatus() {
    const LoginItemStatus status = platform().loginItem.status();
    publish(PreferenceKey::agentLaunchAtLogin, status == LoginItemStatus::enabled);
    publish(PreferenceKey::agentLaunchAtLoginNeedsApproval,
            status == LoginItemStatus::requiresApproval);
}

void Settings::publishTrustIfChanged() {
    Platform& p = platform();
    const bool trusted = p.accessibility.isProcessTrusted();
    if (lastPublishedTrust_ != trusted) {
        lastPublishedTrust_ = trusted;
        d_->set(key(PreferenceKey::agentAccessibilityTrusted), trusted);
    }
    const double now = p.clock.now();
    if (!lastLoginCheck_ || now - *lastLoginCheck_ > loginCheckInterval) {
        lastLoginCheck_ = now;
        publishLoginStatus();
    }
}

void Settings::setLaunchAtLogin(bool on) {
    LoginItem& item = platform().loginItem;
    const auto failure = on ? item.registerItem() : item.unregisterItem();
    if (failure) Log::info(std::string(launchAtLoginFailed) + *failure);
    if (on && item.status() == LoginItemStatus::requiresApproval) {
        item.openSystemSettingsLoginItems();
    }
    publishStatus();
}

}  // namespace vistrel
