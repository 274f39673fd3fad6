#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/hotkey.h"
#include "base/overlay_button.h"
#include "platform/defaults.h"

namespace vistrel {

// Button side lengths of "buttonSizeOption", in points.
namespace ButtonSize {
inline constexpr double small = 20;
inline constexpr double medium = 25;
inline constexpr double large = 32;
}  // namespace ButtonSize

// What the agent does when the displays change to a set a layout was saved on.
enum class FollowDisplaysMode { off, ask, automatic };

// The typed reader of the shared preferences and the publisher of the agent's status.
// Preferences are read from the store at the moment of use, never cached, so a change made
// in the Settings app takes effect at once. A value of the wrong type reads as its default.
// Main thread only.
class Settings {
  public:
    // Layout gaps are clamped to this range, in points.
    static constexpr double maxLayoutsGap = 40;
    // The login item's status is polled at most this often by publishTrustIfChanged().
    static constexpr double loginCheckInterval = 5.0;

    // The instance over the installed platform's shared store.
    static Settings& shared();
    explicit Settings(std::shared_ptr<DefaultsStore> store);

    // close, then minimize and maximize when the user turned them on.
    std::vector<OverlayButton> enabledButtons() const;
    double buttonSize() const;
    bool showMinimize() const;
    bool showMaximize() const;
    bool layoutsEnabled() const;
    bool layoutsShelf() const;
    bool layoutsLaunchApps() const;
    double layoutsGap() const;
    // "layouts.followDisplays": "ask" when absent, not text or not one of the three.
    FollowDisplaysMode layoutsFollowDisplays() const;
    bool layoutsDebugGeometry() const;
    // The raw "buttonTheme" text; unknown names are for the theme reader to reject.
    std::optional<std::string> buttonTheme() const;
    // The "maximizeMode" text, "fullscreen" when absent or not text.
    std::string maximizeMode() const;
    // True when "maximizeMode" asks to fill the screen rather than enter full screen.
    bool maximizeFills() const;
    bool menuBarIconHidden() const;
    bool onboardingCompleted() const;
    bool hotkeyDisabled(Hotkey hotkey) const;

    // Publishes the Accessibility trust and the login item's status, writing only changes.
    void publishStatus();
    void publishLoginStatus();
    // The cheap form for every engine tick: trust when it changed in memory, the login item
    // at most every five seconds.
    void publishTrustIfChanged();
    // Registers or unregisters the login item, opening the Login Items settings when the
    // system holds the registration for approval.
    void setLaunchAtLogin(bool on);

    DefaultsStore& store() { return *d_; }

  private:
    bool flag(std::string_view key, bool fallback) const;
    bool plainFlag(std::string_view key) const;
    void publish(std::string_view key, bool value);

    std::shared_ptr<DefaultsStore> d_;
    std::optional<bool> lastPublishedTrust_;
    std::optional<double> lastLoginCheck_;
};

}  // namespace vistrel
