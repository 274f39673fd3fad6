#pragma once

#include <string_view>

namespace vistrel {

// Every key of the shared preferences domain. Preferences are written by the Settings app
// and read by the agent at the moment of use; "agent." keys are the agent's status, written
// by the agent only when their value changes.
namespace PreferenceKey {
inline constexpr std::string_view showMinimizeButton = "showMinimizeButton";
inline constexpr std::string_view showMaximizeButton = "showMaximizeButton";
inline constexpr std::string_view buttonSizeOption = "buttonSizeOption";
inline constexpr std::string_view buttonTheme = "buttonTheme";
inline constexpr std::string_view maximizeMode = "maximizeMode";
inline constexpr std::string_view menuBarIconHidden = "menuBarIconHidden";
inline constexpr std::string_view onboardingCompleted = "onboardingCompleted";
inline constexpr std::string_view layoutsEnabled = "layouts.enabled";
inline constexpr std::string_view layoutsShelf = "layouts.shelf";
inline constexpr std::string_view layoutsLaunchApps = "layouts.launchApps";
inline constexpr std::string_view layoutsGap = "layouts.gap";
inline constexpr std::string_view layoutsFollowDisplays = "layouts.followDisplays";
inline constexpr std::string_view layoutsSaved = "layouts.saved";
inline constexpr std::string_view layoutsDebugGeometry = "layouts.debugGeometry";
inline constexpr std::string_view layoutsDebugShelf = "layouts.debug.shelf";

inline constexpr std::string_view agentAccessibilityTrusted = "agent.accessibilityTrusted";
// True while the grant is reported but every accessibility call fails with it.
inline constexpr std::string_view agentAccessibilityStale = "agent.accessibilityStale";
inline constexpr std::string_view agentLaunchAtLogin = "agent.launchAtLogin";
inline constexpr std::string_view agentLaunchAtLoginNeedsApproval =
    "agent.launchAtLoginNeedsApproval";
}  // namespace PreferenceKey

// Values of "maximizeMode".
namespace MaximizeMode {
inline constexpr std::string_view fill = "fill";
inline constexpr std::string_view fullScreen = "fullscreen";
}  // namespace MaximizeMode

// Values of "layouts.followDisplays": what happens when the connected displays change to a
// set a layout was saved on.
namespace FollowDisplays {
inline constexpr std::string_view off = "off";
inline constexpr std::string_view ask = "ask";
inline constexpr std::string_view automatic = "automatic";
}  // namespace FollowDisplays

}  // namespace vistrel
